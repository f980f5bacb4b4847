#pragma once

#include "recognition/IArgumentParser.h"

/// Makes position indices comparable: the process has one counter and never resets it, so a test
/// counts from where the counter stood when this object was made. The next index handed out is 1.
class RelativePositions {
public:
    int operator()(int position) const { return position - m_first + 1; }

    /// How many indices were handed out so far.
    int taken() const { return tarv_3_3::IArgumentParser::m_idx - m_first; }

private:
    int m_first = tarv_3_3::IArgumentParser::m_idx;
};
