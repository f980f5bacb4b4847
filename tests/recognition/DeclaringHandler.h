#pragma once

#include <string>

#include "options/RegisteredOptionStorage.h"
#include "tarv_3_3/EventHandler.h"

/// Declares a hundred options at every event, so that the table is replaced while it is in use. Pins
/// it as a parse does.
class DeclaringHandler : public tarv_3_3::EventHandler {
public:
    explicit DeclaringHandler(tarv_3_3::RegisteredOptionStorage& registry)
        : m_registry(registry), m_pin(registry) {}

    bool onOptionParse(const char*) override { return declare(); }

    bool onValueParse(const char*, const tarv_3_3::Value&) override { return declare(); }

private:
    bool declare() {
        for (int i = 0; i < 100; ++i) {
            const std::string name = "declared" + std::to_string(m_registry.m_options.size());
            m_registry.option(name.c_str(), nullptr, "", false, tarv_3_3::vtBool, "");
        }
        return true;
    }

    tarv_3_3::RegisteredOptionStorage& m_registry;
    tarv_3_3::RegisteredOptionStorage::Pin m_pin;
};
