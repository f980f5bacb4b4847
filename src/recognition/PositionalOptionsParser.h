#pragma once

#include "recognition/ArgumentSpan.h"
#include "recognition/IArgumentParser.h"

namespace tarv_3_3 {

/// The index of the option that positional arguments fill, or the size of the table when there is none.
/// Those before `from` are known not to be it.
std::size_t positionalIndex(const std::vector<OptionDescription>& options, std::size_t from = 0);

/// Whether the parser's flags let an argument be positional that looks like this.
bool isPositionalForm(std::string_view argument, unsigned int flags);

/// Binds arguments, whole, as values of the first option that was declared positional.
class TARV_API PositionalOptionsParser : public IArgumentParser {
public:
    PositionalOptionsParser(EventHandler* handler, Garbage* garbage, unsigned int flags);
    TARV_HIDDEN PositionalOptionsParser(EventHandler* handler, Garbage* garbage, unsigned int flags,
                                        internal::Binding& binding);
    ~PositionalOptionsParser() override;

    /// Takes every argument when some option is positional; under `flagDashIsNotPositional` not one
    /// that begins with '-'.
    int recognize(std::vector<std::string>& args, std::vector<OptionDescription>& options,
                  std::string& message) override;

    /// Consumes one argument, or under `flagPositionalTakesRest` all of them. On failure the
    /// arguments taken before stay stored and removed.
    int parse(std::vector<std::string>& args, IResultCollector* collector,
              std::vector<OptionDescription>& options, unsigned long& index, std::string& message) override;

    int getPriority() override;

    ///@{
    /// What `recognize` and `parse` do, without removing anything: what is consumed is added to `consumed`.
    /// `options` is the same table every time, which may only have grown.
    TARV_HIDDEN bool takes(const std::string& argument, const std::vector<OptionDescription>& options);
    TARV_HIDDEN int bind(internal::ArgumentSpan left, IResultCollector* collector,
                         const std::vector<OptionDescription>& options, std::string& message,
                         std::size_t& consumed);
    ///@}

private:
    TARV_HIDDEN std::size_t findPositional(const std::vector<OptionDescription>& options);

    /// The index of the positional option, or of one that lies before it.
    std::size_t m_index = 0;
};

} // namespace tarv_3_3
