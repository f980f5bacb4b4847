#pragma once

#include "recognition/ArgumentSpan.h"
#include "recognition/IArgumentParser.h"

namespace tarv_3_3 {

/// The index of the option that takes positional arguments, or the size of the table when there is none. The
/// search begins at `from`.
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
    /// As `recognize` and `parse`. Removes no argument, but adds the number of those that it used up to
    /// `consumed`. Every call must be given the same table, which may have grown since the last one.
    TARV_HIDDEN bool takes(const std::string& argument, const std::vector<OptionDescription>& options);
    TARV_HIDDEN int bind(internal::ArgumentSpan left, IResultCollector* collector,
                         const std::vector<OptionDescription>& options, std::string& message,
                         std::size_t& consumed);
    ///@}

private:
    TARV_HIDDEN std::size_t findPositional(const std::vector<OptionDescription>& options);

    /// Where the search for the positional option begins: no option before this one is positional.
    std::size_t m_index = 0;
};

} // namespace tarv_3_3
