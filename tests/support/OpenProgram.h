#pragma once

#include "tarv_3_3/typed.h"

/// A program whose record, which the library has of it, can be asked.
struct OpenProgram : tarv_3_3::typed::Program {
    using Program::Program;
    tarv_3_3::typed::engine::Command& record() { return *m_record; }
};
