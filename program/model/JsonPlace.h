#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "model/CommandLine.h"

namespace tarv_program {

/// A value in a JSON text and where it stands, so that what is wrong with it can be said with its place.
class JsonPlace {
public:
    JsonPlace(const nlohmann::json& value, std::string path) : m_value(value), m_path(std::move(path)) {}

    [[noreturn]] void refuse(const std::string& reason) const;

    bool has(const char* name) const;
    /// A member of an object, which must be there.
    JsonPlace member(const char* name) const;

    /// Calls `use` with every element of an array.
    template <class Use>
    void forEach(Use use) const {
        if (!m_value.is_array()) {
            refuse("must be an array");
        }
        for (std::size_t i = 0; i < m_value.size(); ++i) {
            use(JsonPlace(m_value[i], m_path + "[" + std::to_string(i) + "]"));
        }
    }

    /// Calls `use` with the name and the value of every member of an object.
    template <class Use>
    void forEachMember(Use use) const {
        requireObject();
        for (const auto& [name, value] : m_value.items()) {
            use(bytesOf(name), JsonPlace(value, m_path + "." + name));
        }
    }

    void requireObject() const;
    /// The bytes of a text.
    std::string text() const { return bytesOf(plainText()); }
    std::vector<std::string> texts() const;
    unsigned long number() const;
    bool boolean() const;
    /// `true`; nothing else is accepted.
    bool isTrue() const;
    /// The place of a text in `known`.
    std::size_t oneOf(std::initializer_list<const char*> known) const;

private:
    std::string plainText() const;
    std::string bytesOf(const std::string& text) const;

    const nlohmann::json& m_value;
    std::string m_path;
};

} // namespace tarv_program
