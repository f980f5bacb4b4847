#include "reliability/Session.h"

#include <algorithm>

using tarv_3_3::Value;

Session::~Session() {
    if (result != nullptr) {
        result->destroy();
    }
    if (parser != nullptr) {
        parser->destroy();
    }
}

void open(Session& session, int flags) {
    tarv_3_3::createParser(&session.parser, flags);
    session.parser->createResult(&session.result);
}

int parse(Session& session, std::initializer_list<const char*> arguments) {
    const char* argv[16] = {"host"};
    std::copy(arguments.begin(), arguments.end(), argv + 1);
    return session.parser->parseArgsVector(static_cast<int>(arguments.size()) + 1, argv, session.result);
}

int parse(Session& session, const std::vector<std::string>& arguments) {
    std::vector<const char*> argv = {"host"};
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    return session.parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), session.result);
}

std::string parseAndShow(Session& session, std::initializer_list<const char*> arguments,
                         std::initializer_list<const char*> names) {
    const int status = parse(session, arguments);
    return std::to_string(status) + " " + stored(session, names);
}

std::string stored(Session& session, std::initializer_list<const char*> names) {
    std::string line;
    for (const char* const name : names) {
        Value value = session.result->get(name);
        if (value.status != tarv_3_3::valueFound) {
            continue;
        }
        line.append(line.empty() ? "" : " ").append(name);
        const char* separator = "=";
        for (; value.status == tarv_3_3::valueFound; value = session.result->next(name)) {
            if (value.text != nullptr) {
                line.append(separator).append(value.text);
                separator = ",";
            }
        }
    }
    const char* plain = nullptr;
    const char* separator = " --";
    for (int status = session.result->getFirstArgument(&plain); status == tarv_3_3::valueFound;
         status = session.result->getNextArgument(&plain)) {
        line.append(separator).append(" ").append(plain);
        separator = "";
    }
    return line;
}
