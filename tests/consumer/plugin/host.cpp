// A host whose plugin declares options on the host's parser and listens to its events.
#include <dlfcn.h>
#include <stdio.h>

#include "plugin.h"

namespace tarv = tarv_3_3;

namespace {

template <class Function>
Function* find(void* plugin, const char* name) {
    return reinterpret_cast<Function*>(dlsym(plugin, name));
}

int parse(tarv::IParser* parser, tarv::IParseResult* result, const char* level) {
    const char* const arguments[] = {"host", "--name=base", level};
    const int status = parser->parseArgsVector(3, arguments, result);
    printf("host: %s gives %d\n", level, status);
    return status;
}

} // namespace

int main() {
    void* plugin = dlopen(PLUGIN_PATH, RTLD_NOW | RTLD_LOCAL);
    if (plugin == nullptr) {
        fprintf(stderr, "host: %s\n", dlerror());
        return 1;
    }
    tarv::IParser* parser = nullptr;
    tarv::createParser(&parser);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    parser->option("name", "A name of the host.", tarv::vtString);
    find<plugin_start_t>(plugin, "pluginStart")(parser);
    printf("host: plugin's type is %s\n",
           dynamic_cast<tarv::EventHandler*>(parser) != nullptr ? "known" : "unknown");
    parse(parser, result, "--plugin-level=7");
    find<plugin_finish_t>(plugin, "pluginFinish")(parser, result);

    find<plugin_start_t>(plugin, "pluginStart")(parser);
    parse(parser, result, "--plugin-level=-1");
    parse(parser, result, "--plugin-level=10");
    result->destroy();
    parser->destroy();
    dlclose(plugin);
    return 0;
}
