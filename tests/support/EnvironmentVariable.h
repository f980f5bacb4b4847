#pragma once

#include <cstdlib>

/// Sets a variable of the environment for as long as it lives.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const char* value) : m_name(name) { setenv(name, value, 1); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable() { unsetenv(m_name); }

private:
    const char* m_name;
};
