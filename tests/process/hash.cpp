// Prints the hash of a text, to be compared with that of another process.

#include <cstdio>

#include "platform/hashOf.h"

int main() {
    std::printf("%zx\n", tarv_3_3::internal::hashOf("text"));
}
