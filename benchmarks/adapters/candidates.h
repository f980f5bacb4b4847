#pragma once

#include "harness/Library.h"

namespace bench {

extern const Candidate abseilCandidate;
extern const Candidate argtable2Candidate;
extern const Candidate boostCandidate;
extern const Candidate cli11Candidate;
extern const Candidate cxxoptsCandidate;
extern const Candidate getoptCandidate;
extern const Candidate getoptInOrderCandidate;
extern const Candidate gflagsCandidate;
extern const Candidate handwrittenCandidate;
extern const Candidate keepingCandidate;
extern const Candidate llvmCandidate;
extern const Candidate poptCandidate;
extern const Candidate tarvCandidate;
extern const Candidate tclapCandidate;
extern const Candidate typedCandidate;

} // namespace bench
