#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarv_3_3 {

/// Shows a recognizer the front of a long argument vector as a vector of its own, from which it can
/// remove what it consumed at a cost that does not grow with what is behind.
///
/// The original is out of order while the window exists; at its end it holds what was not consumed.
class ArgumentWindow {
public:
    explicit ArgumentWindow(std::vector<std::string>& arguments);
    ArgumentWindow(const ArgumentWindow&) = delete;
    ArgumentWindow& operator=(const ArgumentWindow&) = delete;
    ~ArgumentWindow();

    /// Fills the window up to the front argument and the one behind it, as far as there are any, and
    /// returns whether there is a front one. No recognizer looks further to find a value.
    bool fill();

    /// Fills the window with all that is left.
    void fillWithRest();

    std::vector<std::string>& arguments() { return m_front; }

private:
    void take(std::size_t count);

    std::vector<std::string>& m_arguments;
    std::vector<std::string> m_front;
    /// How many of the arguments have gone into the window.
    std::size_t m_taken = 0;
};

} // namespace tarv_3_3
