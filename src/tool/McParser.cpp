#include "McFile.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>
#include <boost/algorithm/string/trim.hpp>
#include <boost/locale/encoding_utf.hpp>

#include <algorithm>
#include <limits>
#include <set>
#include <utility>

namespace zem::msglib::tool {

namespace {

constexpr auto highestNumber = std::numeric_limits<std::uint32_t>::max();
constexpr std::uint32_t highestCode = 0xFFFF;
constexpr std::uint32_t highestFacility = 0x7FF;
constexpr std::uint32_t highestSeverity = 3;
constexpr std::uint32_t highestLanguage = 0xFFFF;

// The length of an entry is a multiple of 4 in 16 bits, and counts the entry's own header and a
// terminator.
constexpr std::size_t highestTextUnits = (65532 - 4) / 2 - 1;

constexpr char blanks[] = " \t";

/// What a name of the file stands for: a number and, for a language, the file of its table.
struct Named {
    std::uint32_t number;
    std::string bin;
};
using Names = std::map<std::string, Named>;

/// The message that the assignments read last describe.
struct Message {
    std::uint32_t code;
    std::uint32_t severity;
    std::uint32_t facility;
    std::string symbol;

    std::uint32_t id() const { return severity << 30 | facility << 16 | code; }
};

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

bool isIdentifier(const std::string& text) {
    const bool isWord = std::all_of(text.begin(), text.end(), [](char byte) {
        const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
        return isLetter || isDigit(byte) || byte == '_';
    });
    return isWord && !text.empty() && !isDigit(text.front());
}

/// Splits "keyword = value" in two; the second is empty without "=".
std::pair<std::string, std::string> splitAssignment(const std::string& text) {
    const std::size_t equals = std::min(text.find('='), text.size());
    const std::size_t value = std::min(equals + 1, text.size());
    return {boost::trim_copy(text.substr(0, equals)), boost::trim_copy(text.substr(value))};
}

/// Reads the lines of one file from top to bottom.
class McParser {
public:
    McParser(const std::string& path, const std::vector<std::string>& lines)
        : path_(path),
          lines_(lines) {}

    McFile parse();

private:
    void readHeaderLine(std::string line);
    void readTextLine(const std::string& line);

    void assign(const std::string& keyword, const std::string& value);
    void addNames(Names& names, const std::string& list);
    void beginMessage(const std::string& number);
    void beginText(const std::string& language);
    void addSymbol();
    void endText();

    std::uint32_t numberOf(const std::string& text) const;
    const Named& lookUp(const Names& names, const std::string& name) const;
    bool startsMessage(const std::string& line) const;
    [[noreturn]] void refuse(const std::string& words) const;
    [[noreturn]] void refuseMessage(const std::string& words) const;

    const std::string& path_;
    const std::vector<std::string>& lines_;
    std::size_t line_ = 0; ///< lines read so far, so the number of the last one
    McFile file_;

    Names severities_ = {
        {"Success", {0, {}}}, {"Informational", {1, {}}}, {"Warning", {2, {}}}, {"Error", {3, {}}}};
    Names facilities_ = {{"System", {0xFF, {}}}, {"Application", {0xFFF, {}}}};
    Names languages_ = {{"English", {0x409, "MSG00001"}}};

    Message message_ = {};
    bool inText_ = false;
    McText text_ = {};
    std::string bytes_;                                      ///< of the text so far
    std::set<std::pair<std::uint32_t, std::uint32_t>> seen_; ///< identifier and language
    std::map<std::string, std::uint32_t> symbols_;
};

McFile McParser::parse() {
    while (line_ < lines_.size()) {
        const std::string& line = lines_[line_++];
        if (inText_) {
            readTextLine(line);
        } else {
            readHeaderLine(line);
        }
    }
    if (inText_) {
        refuseMessage("the text has no final \".\"");
    }
    if (file_.texts.empty()) {
        refuse("no message in the file");
    }
    return std::move(file_);
}

/// Reads what stands outside texts: a comment, or any number of assignments.
void McParser::readHeaderLine(std::string line) {
    if (boost::trim_left_copy(line).substr(0, 1) == ";") {
        return;
    }
    if (line.find('(') != std::string::npos) {
        while (line.find(')') == std::string::npos && line_ < lines_.size()) {
            line += ' ' + lines_[line_++];
        }
    }
    std::size_t position = line.find_first_not_of(blanks);
    while (position != std::string::npos) {
        const std::size_t equals = line.find('=', position);
        if (equals == std::string::npos || inText_) {
            refuse("not understood: " + line.substr(position));
        }
        const std::size_t value = std::min(line.find_first_not_of(blanks, equals + 1), line.size());
        const bool isList = line.compare(value, 1, "(") == 0;
        const std::size_t end = std::min(
            isList ? line.find(')', value) : line.find_first_of(blanks, value), line.size());
        assign(boost::trim_copy(line.substr(position, equals - position)),
               line.substr(value, end - value));
        position = line.find_first_not_of(blanks, isList ? end + 1 : end);
    }
}

void McParser::assign(const std::string& keyword, const std::string& value) {
    if (keyword == "MessageId") {
        beginMessage(value);
    } else if (keyword == "Severity") {
        message_.severity = lookUp(severities_, value).number;
    } else if (keyword == "Facility") {
        message_.facility = lookUp(facilities_, value).number;
    } else if (keyword == "SymbolicName") {
        message_.symbol = value;
    } else if (keyword == "Language") {
        beginText(value);
    } else if (keyword == "SeverityNames") {
        addNames(severities_, value);
    } else if (keyword == "FacilityNames") {
        addNames(facilities_, value);
    } else if (keyword == "LanguageNames") {
        addNames(languages_, value);
    } else if (keyword != "MessageIdTypedef" && keyword != "OutputBase") {
        refuse("unknown keyword: " + keyword);
    }
}

/// Adds the names of a list "(name=number:other ..." to those that are known.
void McParser::addNames(Names& names, const std::string& list) {
    if (list.empty() || list.front() != '(') {
        refuse("a list in parentheses is missing");
    }
    const std::string inside = boost::trim_copy(list.substr(1));
    std::vector<std::string> words;
    boost::split(words, inside, boost::is_any_of(blanks), boost::token_compress_on);
    for (const std::string& word : words) {
        const auto [name, value] = splitAssignment(word);
        const std::size_t colon = std::min(value.find(':'), value.size());
        const std::size_t other = std::min(colon + 1, value.size());
        names[name] = {numberOf(value.substr(0, colon)), value.substr(other)};
    }
}

/// No number means one more than the last, "+n" means n more.
void McParser::beginMessage(const std::string& number) {
    const bool isRelative = number.empty() || number.front() == '+';
    const std::uint64_t step =
        number.empty() ? 1 : numberOf(isRelative ? number.substr(1) : number);
    const std::uint64_t code = isRelative ? message_.code + step : step;
    if (code > highestCode) {
        refuse("message id " + std::to_string(code) + ": the number does not fit 16 bits");
    }
    message_ = {static_cast<std::uint32_t>(code), 0, 0, {}};
}

void McParser::beginText(const std::string& language) {
    const Named& found = lookUp(languages_, language);
    if (message_.severity > highestSeverity) {
        refuseMessage("severity " + std::to_string(message_.severity) + " does not fit 2 bits");
    }
    if (message_.facility > highestFacility) {
        refuseMessage("facility " + std::to_string(message_.facility) + " does not fit 11 bits");
    }
    if (found.number > highestLanguage || !isIdentifier(found.bin)) {
        refuseMessage("the language needs a number of 16 bits and the name of a file");
    }
    if (!seen_.emplace(message_.id(), found.number).second) {
        refuseMessage("the id comes twice in one language");
    }
    addSymbol();
    file_.bins[found.number] = found.bin;
    text_ = {message_.id(), found.number, {}};
    bytes_.clear();
    inText_ = true;
}

void McParser::addSymbol() {
    if (message_.symbol.empty()) {
        return;
    }
    if (!isIdentifier(message_.symbol)) {
        refuseMessage("the symbol cannot be the name of a constant");
    }
    const auto [known, isNew] = symbols_.emplace(message_.symbol, message_.id());
    if (isNew) {
        file_.symbols.push_back({message_.symbol, message_.id()});
    } else if (known->second != message_.id()) {
        refuseMessage("the symbol stands for message id " + hexadecimal(known->second) +
                      " already");
    }
}

void McParser::readTextLine(const std::string& line) {
    if (line == ".") {
        endText();
    } else if (boost::trim_copy(line) == ".") {
        refuseMessage("blanks beside a final \".\" make it part of the text");
    } else if (startsMessage(line)) {
        refuseMessage("the text goes on into the next message: a final \".\" is missing");
    } else {
        bytes_ += line + "\r\n";
    }
}

void McParser::endText() {
    if (bytes_.empty()) {
        refuseMessage("the text is empty");
    }
    text_.text = boost::locale::conv::utf_to_utf<char16_t>(bytes_);
    if (text_.text.size() > highestTextUnits) {
        refuseMessage("the text has " + std::to_string(text_.text.size()) +
                      " UTF-16 units, more than the " + std::to_string(highestTextUnits) +
                      " that an entry holds");
    }
    file_.texts.push_back(std::move(text_));
    inText_ = false;
}

bool McParser::startsMessage(const std::string& line) const {
    const auto [keyword, value] = splitAssignment(line);
    return line.find('=') != std::string::npos &&
           (keyword == "MessageId" || (keyword == "Language" && languages_.count(value) > 0));
}

/// Reads a number as C writes it: decimal, 0x hexadecimal, or octal behind a 0.
std::uint32_t McParser::numberOf(const std::string& text) const {
    try {
        std::size_t end = 0;
        const unsigned long long number = std::stoull(text, &end, 0);
        if (isDigit(text.front()) && end == text.size() && number <= highestNumber) {
            return static_cast<std::uint32_t>(number);
        }
    } catch (const std::logic_error&) {
        // No number, or one that no type holds: refused below like the rest.
    }
    refuse("not a number of 32 bits: " + text);
}

const Named& McParser::lookUp(const Names& names, const std::string& name) const {
    const auto found = names.find(name);
    if (found == names.end()) {
        refuseMessage("the name " + name + " is not declared");
    }
    return found->second;
}

void McParser::refuse(const std::string& words) const {
    throw McError(at(path_, line_, words));
}

void McParser::refuseMessage(const std::string& words) const {
    const std::string symbol = message_.symbol.empty() ? "" : " (" + message_.symbol + ")";
    refuse("message id " + hexadecimal(message_.id()) + symbol + ": " + words);
}

} // namespace

McFile parseMcFile(const std::string& path, const std::vector<std::string>& lines) {
    return McParser(path, lines).parse();
}

} // namespace zem::msglib::tool
