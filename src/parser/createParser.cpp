#include <exception>

#include "parser/BasicParser.h"
#include "tarv_3_3/IParser.h"

namespace tarv_3_3 {

int createParser(IParser** parser, int flags) {
    try {
        *parser = new BasicParser(flags);
        return parseOk;
    } catch (const std::exception&) {
        return parseException;
    }
}

} // namespace tarv_3_3
