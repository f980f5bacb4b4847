#pragma once

#include <unistd.h>

#include <cstdlib>

/// Gives up the superuser's right to read everything, until it is destroyed.
class OrdinaryUser {
public:
    OrdinaryUser() : m_changed(geteuid() == 0 && seteuid(65534) == 0) {}

    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    ~OrdinaryUser() {
        if (m_changed && seteuid(0) != 0) {
            std::abort();
        }
    }

private:
    bool m_changed;
};
