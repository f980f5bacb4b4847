#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/logLine.h"
#include "tarv_3_3/export.h"

namespace tarv_3_3 {

class EventHandler;
class Garbage;
class IResultCollector;
class OptionDescription;
struct OptionValue;

namespace internal {
struct Binding;
}

/// A recognizer of arguments. The parse driver shows the argument at the front to every recognizer;
/// of those that take it, the one with the highest priority parses it.
///
/// Also hands out position indices, from the one counter of the process.
class TARV_API IArgumentParser {
public:
    ///@{
    /// `handler` and `garbage` belong to the parser and outlive the recognizer; `flags` are the
    /// parser's. `binding` outlives the recognizer, too. A recognizer without one makes its own, and assumes
    /// that there are listeners.
    IArgumentParser(EventHandler* handler, Garbage* garbage, unsigned int flags);
    TARV_HIDDEN IArgumentParser(EventHandler* handler, Garbage* garbage, unsigned int flags, const char* name,
                                internal::Binding& binding);
    ///@}
    IArgumentParser(const IArgumentParser&) = delete;
    IArgumentParser& operator=(const IArgumentParser&) = delete;
    virtual ~IArgumentParser();

    /// Looks at `args[0]` and returns 0 when this recognizer takes it, 1 when not. A call of `parse`
    /// for the same argument may follow.
    virtual int recognize(std::vector<std::string>& args, std::vector<OptionDescription>& options,
                          std::string& message) = 0;

    /// Binds the argument at the front, stores what it found through `collector` (null: nowhere),
    /// removes the arguments that it consumed, and sets `index` to that of the option. The
    /// records of `options` must stay where they are meanwhile, whatever handlers declare; see
    /// `RegisteredOptionStorage::Pin`.
    /// Returns 0, or `parseVetoed` or `parseFailed` with the message in `message` and the argument that
    /// failed still at the front.
    virtual int parse(std::vector<std::string>& args, IResultCollector* collector,
                      std::vector<OptionDescription>& options, unsigned long& index,
                      std::string& message) = 0;

    /// The end of a message, which names the argument that the error was found in.
    virtual std::string formatTokenMessage(std::string& token);

    virtual int getPriority() = 0;

    /// The next position index: 1 at first, then counting up for the life of the process. Parses on several
    /// threads never get the same one, and each of them gets ascending ones.
    static int getNewPositionIndex();

    /// Read and changed by atomic operations while the process has several threads.
    static int m_idx;

protected:
    /// Binds `value` to `option` and stores the occurrence: splits it at the option's separator,
    /// converts and validates each piece, and shows it to the handlers. An empty value is an
    /// occurrence without a value. `args` is only read, for messages. Returns as `parse` does; on
    /// failure nothing is stored.
    int parseValueAndAddOption(std::string& value, std::string& message, const OptionDescription& option,
                               std::vector<std::string>& args, IResultCollector* collector);

    /// As `parseValueAndAddOption`, but does not write a completed value back. `value` must end in a
    /// terminating zero.
    TARV_HIDDEN int bindValue(std::string_view value, const OptionDescription& option,
                              const std::string& argument, IResultCollector* collector, std::string& message);

    /// The record at `index`, to bind an argument to. A handler may refine the last record while the argument
    /// is bound. Of that record a copy is returned, so this argument is bound to it as it is now. Throws
    /// `std::out_of_range` when there is no such record.
    TARV_HIDDEN const OptionDescription& recordToBind(const std::vector<OptionDescription>& options,
                                                      std::size_t index);

    /// Returns `parseFailed` with `text` in `message`, and traces it.
    TARV_HIDDEN int fail(std::string& message, std::string text) const;

    /// Traces one line: the recognizer's name, then the parts.
    template <class... Parts>
    void log(const Parts&... parts) const {
        internal::writeLogLine(m_name, parts...);
    }

    EventHandler* m_handler;
    std::string m_name;
    Garbage* m_garbage;
    unsigned int m_flags;
    /// Whether somebody is told of events.
    bool m_hasListeners;

private:
    TARV_HIDDEN int bindSingleValue(std::string_view value, const OptionDescription& option,
                                    const std::string& argument, std::string& message);
    TARV_HIDDEN int bindList(std::string_view value, const OptionDescription& option,
                             const std::string& argument, std::string& message);
    TARV_HIDDEN void makeRoomForValues(std::string_view rest, char separator);
    TARV_HIDDEN int bindText(const char* text, const OptionDescription& option, const std::string& argument,
                             std::string& message);
    TARV_HIDDEN bool isAccepted(const OptionValue& bound, const OptionDescription& option);
    TARV_HIDDEN int failVetoed(const std::string& value, const OptionDescription& option,
                               const std::string& argument, std::string& message);

    std::unique_ptr<internal::Binding> m_ownBinding;
    internal::Binding& m_binding;
};

} // namespace tarv_3_3
