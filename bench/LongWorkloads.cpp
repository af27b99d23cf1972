#include "Bench.h"
#include "LongMessage.h"
#include "Rivals.h"

#include <msglib/MessageFormat.h>
#include <msglib/MessageLibrary.h>

#include <memory>
#include <vector>

namespace bench {

namespace {

using zem::msglib::MessageFormat;
using zem::msglib::MessageLibrary;

void addLongMessage(const std::string& workload, const std::shared_ptr<LongMessage>& data) {
    data->finish();
    std::string text;
    data->write(text);
    add(workload + "/one_shot", text, [data](std::string& out) {
        out = MessageLibrary::instance().formatMessage(data->pattern, data->list);
    });
    add(workload + "/kept", text, [data, message = MessageFormat(data->pattern)](std::string& out) {
        out.clear();
        message.format(data->list, out);
    });
    add(workload + "/fmt", text, [data, locale = groupingLocale()](std::string& out) {
        out = fmt::vformat(locale, data->fmtPattern, data->store);
    });
    add(workload + "/straight", text, [data](std::string& out) { data->write(out); });
}

void addLongText() {
    constexpr std::size_t size = 64 * 1024;
    constexpr std::size_t strings = 10;
    constexpr std::string_view words = "The quick brown fox jumps over the lazy dog. ";
    const auto data = std::make_shared<LongMessage>();
    for (std::size_t i = 1; i <= strings; ++i) {
        data->appendPlaceholder(Kind::Text);
        while (data->pattern.size() < size * i / strings) {
            data->appendText(words.substr(0, size * i / strings - data->pattern.size()));
        }
    }
    addLongMessage("text_64k", data);
}

void addPlaceholders(const std::string& workload, std::size_t count,
                     const std::vector<Kind>& kinds) {
    const auto data = std::make_shared<LongMessage>();
    for (std::size_t i = 0; i < count; ++i) {
        data->appendPlaceholder(kinds[i % kinds.size()]);
        data->appendText(i + 1 == count ? "." : ", ");
    }
    addLongMessage(workload, data);
}

} // namespace

void addLongWorkloads() {
    addLongText();
    for (const std::size_t count : {10U, 100U, 1000U, 10000U}) {
        addPlaceholders("placeholders_" + std::to_string(count), count,
                        {Kind::Text, Kind::Integer, Kind::Number, Kind::Percent, Kind::Currency});
    }
    addPlaceholders("texts_1000", 1000, {Kind::Text});
}

} // namespace bench
