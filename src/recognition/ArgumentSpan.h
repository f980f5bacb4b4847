#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarv_3_3::internal {

/// The arguments that are left to be recognised, the front one first. There is always a front one.
struct ArgumentSpan {
    const std::string& front() const { return *first; }
    /// The argument behind the front one, null when there is none.
    const std::string* next() const { return first + 1 != end ? first + 1 : nullptr; }

    const std::string* first;
    const std::string* end;
};

/// Counts the arguments that are consumed from the front of a vector, and removes them at its own end, all
/// at once.
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
