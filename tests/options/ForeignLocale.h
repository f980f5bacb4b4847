#pragma once

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <locale>
#include <string>

#include "support/TemporaryDirectory.h"

namespace tarv_3_3 {

/// Makes C++ streams write and read numbers as 1.234,5 as long as it lives.
class ForeignStreams {
public:
    ForeignStreams() : m_former(std::locale::global(std::locale(std::locale::classic(), new Numbers))) {}

    ForeignStreams(const ForeignStreams&) = delete;
    ForeignStreams& operator=(const ForeignStreams&) = delete;

    ~ForeignStreams() { std::locale::global(m_former); }

private:
    class Numbers : public std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    std::locale m_former;
};

/// Makes the functions of C read and write numbers as 1,5 as long as it lives. No such locale need
/// be installed: it is the system's C.utf8 with another decimal point.
class ForeignC {
public:
    ForeignC() : m_former(std::setlocale(LC_NUMERIC, nullptr)) {
        std::ifstream source("/usr/lib/locale/C.utf8/LC_NUMERIC", std::ios::binary);
        std::string numeric{std::istreambuf_iterator<char>(source), std::istreambuf_iterator<char>()};
        const std::size_t decimalPoint = numeric.find('.');
        if (decimalPoint == std::string::npos) {
            return;
        }
        numeric[decimalPoint] = ',';
        std::filesystem::create_directory(m_directory.pathOf("foreign"));
        m_directory.write("foreign/LC_NUMERIC", numeric);
        setenv("LOCPATH", m_directory.pathOf("").c_str(), 1);
        std::setlocale(LC_NUMERIC, "foreign");
        unsetenv("LOCPATH");
    }

    ForeignC(const ForeignC&) = delete;
    ForeignC& operator=(const ForeignC&) = delete;

    ~ForeignC() { std::setlocale(LC_NUMERIC, m_former.c_str()); }

    static bool works() {
        char text[8];
        std::snprintf(text, sizeof text, "%.1f", 1.5);
        return std::string(text) == "1,5";
    }

private:
    TemporaryDirectory m_directory;
    std::string m_former;
};

} // namespace tarv_3_3
