#pragma once

#include <string>
#include <string_view>

namespace tarv_3_3::typed::engine {

/// What became of a text that should be a number.
enum class NumberOutcome {
    read,
    notOne,
    /// It is one, but no type of its kind holds it.
    tooLarge
};

///@{
/// A whole text as a number: digits, or "0x" and hexadecimal ones, behind a sign. No blanks.
NumberOutcome readWhole(std::string_view text, long long& number);
NumberOutcome readWhole(std::string_view text, unsigned long long& number);
///@}

/// The same with a fraction and an exponent, as the classic locale writes them; neither infinite nor
/// "nan".
NumberOutcome readReal(std::string_view text, double& number);

/// A number of bytes: "4096", "4k", "4kB", "4Ki", "4KiB", from k to E; a fraction where whole bytes come
/// out, as in "1.5k".
NumberOutcome readSize(std::string_view text, unsigned long long& bytes);

/// What a duration is typed in, as a fraction of a second.
struct TimeUnit {
    long long numerator;
    long long denominator;
};

enum class DurationOutcome { read, notOne, noUnit, tooLarge, inexact };

///@{
/// A number and its unit, as in "1.5s" or "-3min", counted in `unit`. Units are ns, us, ms, s, min, h
/// and d. To be whole, it must be exact.
DurationOutcome readDuration(std::string_view text, TimeUnit unit, long long& count);
DurationOutcome readDuration(std::string_view text, TimeUnit unit, double& count);
///@}

///@{
/// How a number is typed.
std::string showReal(double number, bool isFloat);
std::string showSize(unsigned long long bytes);
/// `count` is a number of units; one that has no name is shown in seconds.
std::string showDuration(const std::string& count, TimeUnit unit);
///@}

/// 1, true, yes, on and their contraries, in small letters; -1 when it is none of them.
int readSwitchText(std::string_view text);

} // namespace tarv_3_3::typed::engine
