#include "ArgumentUses.h"

#include "base/Failure.h"
#include "base/ScannedText.h"
#include "message/PlaceholderReader.h"
#include "number/ChoiceReader.h"

#include <deque>

namespace zem::msglib::tool {

namespace {

// Reads texts that are still to be read one after the other, so that choices in one another take no
// room on the stack.
class UseReader {
public:
    std::map<int, ArgumentUse> read(std::string_view pattern) {
        addText()(pattern);
        for (std::size_t next = 0; next < messages_.size(); ++next) {
            readMessage(messages_[next]->text());
        }
        return std::move(uses_);
    }

private:
    void readMessage(std::string_view message);
    void readPlaceholder(PlaceholderReader& reader);
    void readChoice(std::string_view choice);

    ScannedText& addText() {
        messages_.push_back(&kept_.emplace_back());
        return *messages_.back();
    }

    std::map<int, ArgumentUse> uses_;
    std::deque<ScannedText> kept_;      // a text may borrow from the one around it
    std::deque<ScannedText*> messages_; // those that are messages
};

void UseReader::readMessage(std::string_view message) {
    PlaceholderReader reader(message);
    while (reader.readText([](std::string_view) {})) {
        readPlaceholder(reader);
    }
}

void UseReader::readPlaceholder(PlaceholderReader& reader) {
    const int index = reader.readIndex();
    ScannedText type;
    ScannedText& style = kept_.emplace_back();
    reader.readType(type);
    reader.readStyle(style);
    reader.readEnd();

    const bool isChoice = type.text() == "choice";
    if (index >= 0) {
        ArgumentUse& use = uses_[index];
        use.isNumber |= isChoice || type.text() == "number";
        use.isTime |= type.text() == "date" || type.text() == "time";
    }
    if (isChoice) {
        readChoice(style.text());
    } else {
        kept_.pop_back();
    }
}

void UseReader::readChoice(std::string_view choice) {
    if (choice.empty()) {
        raise(Failure::ChoiceStyleMissing);
    }
    ChoiceReader reader(choice);
    do {
        reader.readLimit();
    } while (reader.readText(addText()));
}

} // namespace

std::map<int, ArgumentUse> argumentUses(std::string_view pattern) {
    return UseReader().read(pattern);
}

} // namespace zem::msglib::tool
