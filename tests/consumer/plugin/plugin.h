#pragma once

#include "tarv_3_3/tarv.h"

/// What the host looks up in the plugin by these names.
extern "C" {
using plugin_start_t = void(tarv_3_3::IParser* parser);
using plugin_finish_t = void(tarv_3_3::IParser* parser, tarv_3_3::IParseResult* result);
}
