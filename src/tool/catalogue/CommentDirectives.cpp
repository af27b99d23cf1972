#include "tool/catalogue/CommentDirectives.h"

#include <algorithm>

namespace zem::msglib::tool {

namespace {

constexpr std::string_view separators = " \t,";
constexpr std::string_view name = "msglib:";

} // namespace

Place contentOf(Place comment) {
    const std::string_view text = comment.text();
    const std::size_t begin = std::min(text.find_first_not_of("; \t/"), text.size());
    return {comment.file, comment.offset + begin, comment.length - begin};
}

Place takeWord(Place& rest) {
    const std::string_view text = rest.text();
    const std::size_t begin = std::min(text.find_first_not_of(separators), text.size());
    const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
    const Place word{rest.file, rest.offset + begin, end - begin};
    rest = {rest.file, rest.offset + end, text.size() - end};
    return word;
}

bool isAnnotation(Place comment) {
    Place rest = contentOf(comment);
    return takeWord(rest).text() == "@arg";
}

CommentDirective readDirective(Place comment) {
    Place rest = contentOf(comment);
    if (rest.text().substr(0, name.size()) != name) {
        return {{comment.file, comment.offset, 0}, {}};
    }
    const Place start{rest.file, rest.offset, name.size()};
    rest = {rest.file, start.end(), rest.length - start.length};
    CommentDirective directive{takeWord(rest), {}};
    for (Place word = takeWord(rest); word.length > 0; word = takeWord(rest)) {
        directive.arguments.push_back(word);
    }
    if (directive.verb.length == 0) { // a directive without a verb is a directive too
        directive.verb = start;
    }
    return directive;
}

} // namespace zem::msglib::tool
