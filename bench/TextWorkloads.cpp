#include "Bench.h"
#include "Rivals.h"

#include <msglib/MessageFormat.h>
#include <msglib/MessageFormatStream.h>
#include <msglib/MessageLibrary.h>

#include <boost/format.hpp>
#include <fmt/args.h>
#include <fmt/format.h>

#include <sstream>

namespace bench {

namespace {

using zem::msglib::MessageFormat;
using zem::msglib::MessageFormatStream;
using zem::msglib::MessageLibrary;

const std::string file = "Annual report.odt";
const std::string source = "Desktop";
const std::string target = "Backup";
const std::string sentence = "Copied {0} from {1} to {2}.";
constexpr std::string_view sentenceText = "Copied Annual report.odt from Desktop to Backup.";

void addSentence() {
    add("sentence/one_shot", sentenceText,
        [list = arguments(file, source, target)](std::string& out) {
            out = MessageLibrary::instance().formatMessage(sentence, list);
        });
    add("sentence/kept", sentenceText,
        [message = MessageFormat(sentence),
         list = arguments(file, source, target)](std::string& out) {
            out.clear();
            message.format(list, out);
        });
    static const auto store = fmt::make_format_args(file, source, target);
    add("sentence/fmt", sentenceText,
        [](std::string& out) { out = fmt::vformat(sentence, store); });
}

void addSentenceOfOthers() {
    add("sentence/snprintf", sentenceText, [](std::string& out) {
        print(out, "Copied %s from %s to %s.", file.c_str(), source.c_str(), target.c_str());
    });
    add("sentence/ostringstream", sentenceText, [](std::string& out) {
        std::ostringstream stream;
        stream << "Copied " << file << " from " << source << " to " << target << '.';
        out = stream.str();
    });
    add("sentence/boost_format", sentenceText, [](std::string& out) {
        out = (boost::format("Copied %1% from %2% to %3%.") % file % source % target).str();
    });
    add("sentence/straight", sentenceText, [](std::string& out) {
        out.assign("Copied ").append(file).append(" from ").append(source);
        out.append(" to ").append(target).append(".");
    });
}

void addStream() {
    add("stream/one_shot", sentenceText, [](std::string& out) {
        out = (MessageFormatStream(sentence.c_str()) << file << source << target).toString();
    });
    add("stream/fmt", sentenceText, [](std::string& out) {
        fmt::dynamic_format_arg_store<fmt::format_context> store;
        store.push_back(file);
        store.push_back(source);
        store.push_back(target);
        out = fmt::vformat(sentence, store);
    });
}

} // namespace

void addTextWorkloads() {
    addSentence();
    addSentenceOfOthers();
    addStream();
}

} // namespace bench
