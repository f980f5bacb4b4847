#pragma once

/// Makes the memory of this process fail on request. Every `operator new`, the hooks that variants
/// take their texts from and, in builds without a sanitizer, `malloc` itself pass through here.
namespace failing {

enum class Mode {
    /// One allocation fails; those behind it succeed again.
    once,
    /// Memory is exhausted: every later allocation fails as well.
    forGood
};

/// What happened between arming and disarming.
struct Account {
    /// Allocations asked for, the failed ones included.
    long asked;
    long failed;
};

/// From now on the `nth` allocation fails; the first is 1, and with 0 none does.
void arm(long nth, Mode mode);

/// From now on every allocation succeeds that the system can serve.
Account disarm();

/// Blocks taken with `operator new` or for a variant's text, and not given back.
long liveBlocks();

/// The room of these blocks in bytes, and the most that it was since the last call of `forgetPeak`.
long liveBytes();
long peakBytes();
void forgetPeak();

/// Directs the variants' memory through here. Call it while no text variant exists.
void hookVariants();

} // namespace failing
