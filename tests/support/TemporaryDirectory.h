#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

/// A new directory that goes, with all that is in it, when this object does.
class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tarv-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no temporary directory");
        }
        m_path = pattern;
    }

    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::string pathOf(const std::string& name) const { return m_path + "/" + name; }

    /// Writes a file, byte for byte, and returns its path.
    std::string write(const std::string& name, const std::string& contents) const {
        std::ofstream file(pathOf(name), std::ios::binary);
        file << contents << std::flush;
        if (!file) {
            throw std::runtime_error("cannot write " + pathOf(name));
        }
        return pathOf(name);
    }

private:
    std::string m_path;
};
