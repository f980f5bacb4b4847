#include "plugin.h"

#include <stdint.h>
#include <stdio.h>
#include <string.h>

#include <stdexcept>

namespace tarv = tarv_3_3;

namespace {

class PluginHandler : public tarv::EventHandler {
public:
    bool onValueParse(const char* name, const tarv::Value& value) override {
        if (strcmp(name, "plugin-level") != 0) {
            return true;
        }
        if (value.value.get<int32_t>() > 9) {
            throw std::runtime_error("the level is too high");
        }
        return value.value.get<int32_t>() >= 0;
    }
};

PluginHandler handler;

} // namespace

extern "C" __attribute__((visibility("default"))) void pluginStart(tarv::IParser* parser) {
    parser->option("plugin-level", "How much the plugin does.", tarv::vtInt32);
    parser->addHandler(&handler);
}

extern "C" __attribute__((visibility("default"))) void pluginFinish(tarv::IParser* parser,
                                                                    tarv::IParseResult* result) {
    printf("plugin: level %s\n", result->get("plugin-level").text);
    printf("plugin: host's name %s\n", result->get("name").text);
    parser->removeHandler(&handler);
}
