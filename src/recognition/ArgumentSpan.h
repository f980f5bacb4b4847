#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarv_3_3::internal {

/// The arguments that are still to be recognised. There is at least one.
struct ArgumentSpan {
    const std::string& front() const { return *first; }
    /// The argument behind the front one, null when there is none.
    const std::string* next() const { return first + 1 != end ? first + 1 : nullptr; }

    const std::string* first;
    const std::string* end;
};

/// Counts the arguments that are used up from the front of a vector. Its destructor removes them all at once,
/// since erasing them one by one is quadratic.
class ConsumedArguments {
public:
    explicit ConsumedArguments(std::vector<std::string>& arguments) : m_arguments(arguments) {}
    ConsumedArguments(const ConsumedArguments&) = delete;
    ConsumedArguments& operator=(const ConsumedArguments&) = delete;
    ~ConsumedArguments() {
        m_arguments.erase(m_arguments.begin(), m_arguments.begin() + static_cast<std::ptrdiff_t>(count));
    }

    ArgumentSpan left() const {
        return {m_arguments.data() + count, m_arguments.data() + m_arguments.size()};
    }

    std::size_t count = 0;

private:
    std::vector<std::string>& m_arguments;
};

} // namespace tarv_3_3::internal
