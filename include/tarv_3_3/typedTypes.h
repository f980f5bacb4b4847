#pragma once

/// Types of values that `tarv_3_3/typed.h`, which includes this, brings along.
namespace tarv_3_3::typed {

inline namespace v1 {

/// A text that the program keeps; never null. Compared by content.
class Text {
public:
    /// Null stands for the empty text.
    constexpr Text(const char* text = "") : m_text(text != nullptr ? text : "") {}
    ///@{
    /// Never null.
    constexpr const char* c_str() const { return m_text; }
    constexpr operator const char*() const { return m_text; }
    ///@}
    /// Whether it is "".
    constexpr bool isEmpty() const { return *m_text == '\0'; }

    ///@{
    /// By content.
    friend constexpr bool operator==(Text left, Text right) { return isEqual(left.m_text, right.m_text); }
    friend constexpr bool operator!=(Text left, Text right) { return !isEqual(left.m_text, right.m_text); }
    friend constexpr bool operator==(Text left, const char* right) { return left == Text(right); }
    friend constexpr bool operator!=(Text left, const char* right) { return left != Text(right); }
    ///@}

private:
    static constexpr bool isEqual(const char* left, const char* right) {
        for (; *left != '\0' && *left == *right; ++left, ++right) {
        }
        return *left == *right;
    }

    const char* m_text;
};

/// A number of bytes, typed as "4096", "4k", "4kB" (1000 each) or "4Ki", "4KiB" (1024), up to E.
struct Size {
    /// Of so many bytes.
    constexpr Size(unsigned long long count = 0) : bytes(count) {}
    /// The number of bytes.
    constexpr operator unsigned long long() const { return bytes; }

    /// How many there are.
    unsigned long long bytes;
};

/// The name of an enumerator, as it is typed.
template <class E>
struct Choice {
    /// Without blanks.
    const char* name;
    /// What it stands for.
    E value;
};

/// Specialize it with `static constexpr Choice<E> list[]` for an enumeration that the compiler cannot
/// name: one whose values do not count up from 0 to 127 at most, whose names are longer than 63 bytes, or
/// which is over `bool` or has no fixed underlying type.
template <class E>
struct Names;

} // namespace v1

} // namespace tarv_3_3::typed
