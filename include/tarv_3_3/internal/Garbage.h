#pragma once

#include <memory>

#include "tarv_3_3/export.h"
#include "tarv_3_3/internal/TextSet.h"

namespace tarv_3_3 {

/// Keeps copies of the texts that were handed out as C strings. Each parser and each result owns one. It only
/// grows, and is destroyed with its owner.
class TARV_API Garbage {
public:
    Garbage();
    Garbage(const Garbage&) = delete;
    Garbage& operator=(const Garbage&) = delete;
    ~Garbage();

    /// Returns a kept copy of `text`; equal texts share one. Null yields a static "".
    /// The pointer stays valid until this object is destroyed.
    virtual const char* init(const char* text);

private:
    /// Made for the first text.
    std::unique_ptr<internal::TextSet> m_strings;
};

} // namespace tarv_3_3
