#include "tool/checks/PatternChecks.h"

#include <set>
#include <string>

namespace zem::msglib::tool {

void checkArguments(const PatternTree& tree, Diagnostics& diagnostics) {
    if (!diagnostics.isOn(rules::unusedArgument)) {
        return;
    }
    std::set<int> used;
    const Placeholder* highest = nullptr;
    for (const PatternText& text : tree.texts()) {
        for (const Placeholder& placeholder : text.placeholders) {
            used.insert(placeholder.index);
            highest =
                highest == nullptr || placeholder.index > highest->index ? &placeholder : highest;
        }
    }
    if (highest == nullptr) {
        return;
    }
    int expected = 0;
    for (const int index : used) {
        if (index > expected) {
            diagnostics.report(rules::unusedArgument, highest->whole,
                               "argument " + std::to_string(expected) +
                                   " is not used, though argument " +
                                   std::to_string(highest->index) + " is");
            return;
        }
        expected = index < 0 ? expected : index + 1;
    }
}

void checkPattern(const PatternTree& tree, Diagnostics& diagnostics) {
    checkSyntax(tree, diagnostics);
    checkPlaceholders(tree, diagnostics);
    checkChoices(tree, diagnostics);
    checkDroppedCharacters(tree, diagnostics);
    checkDecimalStyles(tree, diagnostics);
    checkDateStyles(tree, diagnostics);
    checkStaticText(tree, diagnostics);
    checkArguments(tree, diagnostics);
}

} // namespace zem::msglib::tool
