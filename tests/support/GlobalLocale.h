#pragma once

#include <locale>

/// Makes a locale the global one, for as long as this object lives.
class GlobalLocale {
public:
    explicit GlobalLocale(const std::locale& locale) : m_former(std::locale::global(locale)) {}
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;
    ~GlobalLocale() { std::locale::global(m_former); }

private:
    std::locale m_former;
};

/// A classification in which '_' is the only white space.
class UnderscoreIsSpace : public std::ctype<char> {
public:
    UnderscoreIsSpace() : std::ctype<char>(onlyUnderscore()) {}

    /// The classic locale with this classification.
    static std::locale locale() { return std::locale(std::locale::classic(), new UnderscoreIsSpace); }

private:
    static const mask* onlyUnderscore() {
        static mask table[table_size] = {};
        table[static_cast<unsigned char>('_')] = space;
        return table;
    }
};
