#include "LongMessage.h"

#include "Rivals.h"

#include <functional>
#include <utility>

// Static texts and placeholders go in, one after another. The pattern, the arguments and the
// expected text come out, for the library and for {fmt}.

namespace bench {

namespace {

const char* style(Kind kind) {
    switch (kind) {
    case Kind::Number: return ",number}";
    case Kind::Percent: return ",number,percent}";
    case Kind::Currency: return ",number,currency}";
    default: return "}";
    }
}

std::string fmtPlaceholder(Kind kind, const std::string& index) {
    switch (kind) {
    case Kind::Integer: return "{" + index + ":L}";
    case Kind::Number: return "{" + index + ":.2Lf}";
    case Kind::Percent: return "{" + index + ":.2Lf}%";
    case Kind::Currency: return "${" + index + ":.2Lf}";
    default: return "{" + index + "}";
    }
}

/// The library multiplies a percentage by 100; the rivals get the product.
boost::any argumentOf(const LongArgument& argument) {
    switch (argument.kind) {
    case Kind::Text: return argument.text;
    case Kind::Integer: return argument.integer;
    case Kind::Percent: return argument.number / 100;
    default: return argument.number;
    }
}

void append(const LongArgument& argument, std::string& out) {
    switch (argument.kind) {
    case Kind::Text: out += argument.text; break;
    case Kind::Integer: appendGrouped(argument.integer, out); break;
    case Kind::Number: appendGrouped(argument.number, 2, out); break;
    case Kind::Percent:
        appendGrouped(argument.number, 2, out);
        out += '%';
        break;
    case Kind::Currency:
        out += '$';
        appendGrouped(argument.number, 2, out);
        break;
    }
}

} // namespace

void LongMessage::appendText(std::string_view text) {
    pattern += text;
    fmtPattern += text;
    lastText_ += text;
}

void LongMessage::appendPlaceholder(Kind kind) {
    const int number = static_cast<int>(arguments_.size());
    const std::string index = std::to_string(number);
    pattern.append("{").append(index).append(style(kind));
    fmtPattern += fmtPlaceholder(kind, index);
    texts_.push_back(std::exchange(lastText_, {}));
    // Eighths and their products by 100 are exact, so the rivals don't differ in rounding.
    arguments_.push_back({kind, "argument " + index, number * 1001, number * 12.5});
}

void LongMessage::finish() {
    store.reserve(arguments_.size(), 0);
    for (const LongArgument& argument : arguments_) {
        list.push_back(argumentOf(argument));
        switch (argument.kind) {
        case Kind::Text: store.push_back(std::cref(argument.text)); break;
        case Kind::Integer: store.push_back(argument.integer); break;
        default: store.push_back(argument.number);
        }
    }
}

void LongMessage::write(std::string& out) const {
    out.clear();
    for (std::size_t i = 0; i < arguments_.size(); ++i) {
        out += texts_[i];
        append(arguments_[i], out);
    }
    out += lastText_;
}

} // namespace bench
