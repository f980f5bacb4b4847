#include <cstdio>
#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("required", "1.0", "Logs in somewhere.");
    auto host = tool.option<tarv::Text>("host", "Where to log in.").required();
    auto user = tool.option<tarv::Text>("user,u", "Whom to log in.");
    auto guest = tool.flag("guest", "Log in as nobody.");
    auto password = tool.option<tarv::Text>("password-file", "Where the password is.").needs(user);
    auto certificate = tool.option<tarv::Text>("certificate", "What to show.");
    auto key = tool.option<tarv::Text>("key", "What belongs to the certificate.");
    tool.exactlyOne(user, guest).atMostOne(password, certificate).allOrNone(certificate, key);
    return tool.run(argc, argv, [=] { std::printf("log in at %s\n", host->c_str()); });
}
