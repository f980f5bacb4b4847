#pragma once

#include "tarv_3_3/internal/typedEngine.h"

namespace tarv_3_3::typed::engine {

/// What a parse does, step by step.
class Work {
public:
    Work() = default;
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    virtual ~Work() = default;

    /// What the host's code does next; false when nothing is left. `accepted` is what the last step
    /// returned.
    virtual bool next(bool accepted, Step& step) = 0;

    /// Asked when no step is left. The texts live as long as this object.
    virtual Result result() = 0;
};

} // namespace tarv_3_3::typed::engine
