#pragma once

#include "recognition/IArgumentParser.h"

namespace tarv_3_3 {

/// Binds arguments, whole, as values of the first option that was declared positional.
class TARV_API PositionalOptionsParser : public IArgumentParser {
public:
    PositionalOptionsParser(EventHandler* handler, Garbage* garbage, unsigned int flags);
    TARV_HIDDEN PositionalOptionsParser(EventHandler* handler, Garbage* garbage, unsigned int flags,
                                        Listeners listeners);
    ~PositionalOptionsParser() override;

    /// Takes every argument when some option is positional; under `flagDashIsNotPositional` not one
    /// that begins with '-'.
    int recognize(std::vector<std::string>& args, std::vector<OptionDescription>& options,
                  std::string& err) override;

    /// Consumes one argument, or under `flagPositionalTakesRest` all of them. On failure the
    /// arguments taken before stay stored and removed.
    int parse(std::vector<std::string>& args, IResultCollector* collector,
              std::vector<OptionDescription>& options, unsigned long& index, std::string& err) override;

    int getPriority() override;

private:
    TARV_HIDDEN int bindFront(std::vector<std::string>& args, IResultCollector* collector,
                              const std::vector<OptionDescription>& options, const OptionDescription& option,
                              std::string& err);
};

} // namespace tarv_3_3
