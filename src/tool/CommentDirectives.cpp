#include "CommentDirectives.h"

#include <algorithm>

namespace zem::msglib::tool {

namespace {

constexpr std::string_view separators = " \t,";
constexpr std::string_view name = "msglib:";

/// Takes blanks, and then the bytes up to the next ones; empty at the end.
Place takeWord(Place& rest) {
    const std::string_view text = rest.text();
    const std::size_t begin = std::min(text.find_first_not_of(separators), text.size());
    const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
    const Place word{rest.file, rest.offset + begin, end - begin};
    rest = {rest.file, rest.offset + end, text.size() - end};
    return word;
}

} // namespace

CommentDirective readDirective(Place comment) {
    const std::string_view text = comment.text();
    const std::size_t begin = std::min(text.find_first_not_of("; \t/"), text.size());
    if (text.substr(begin, name.size()) != name) {
        return {{comment.file, comment.offset, 0}, {}};
    }
    const std::size_t after = begin + name.size();
    Place rest{comment.file, comment.offset + after, text.size() - after};
    CommentDirective directive{takeWord(rest), {}};
    for (Place word = takeWord(rest); word.length > 0; word = takeWord(rest)) {
        directive.arguments.push_back(word);
    }
    if (directive.verb.length == 0) { // nothing but the name: a directive all the same
        directive.verb = {comment.file, comment.offset + begin, name.size()};
    }
    return directive;
}

} // namespace zem::msglib::tool
