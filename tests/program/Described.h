#pragma once

#include <tarv_3_3/description.h>
#include <tarv_3_3/tarv.h>

#include "model/readDescription.h"
#include "model/rebuild.h"

/// The command line that `declare` declares, as its description has it.
template <class Declare>
tarv_program::CommandLine described(Declare declare, int flags = 0) {
    tarv_program::CommandLine empty;
    empty.flags = flags;
    const tarv_program::Parser parser = tarv_program::rebuild(empty);
    declare(*parser);
    tarv_program::CommandLine line = tarv_program::readDescription(describeAsJson(parser.get()), "it");
    line.names = {"tool"};
    return line;
}
