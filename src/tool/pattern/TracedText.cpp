#include "tool/pattern/TracedText.h"

#include <algorithm>
#include <utility>

// A text is either a part of the source file, or joined from pieces. A joined text has a list of
// runs, each with its position in the text and its offset in the file. Places are found in this
// list by bisection. `TextTracer` starts to join only at the second piece.

namespace zem::msglib::tool {

namespace {

bool continuesCharacter(std::string_view text, std::size_t position) noexcept {
    return position < text.size() && (static_cast<unsigned char>(text[position]) & 0xC0) == 0x80;
}

} // namespace

TracedText TracedText::part(std::string_view part) const {
    TracedText result = *this;
    result.text_ = part;
    return result;
}

std::size_t TracedText::positionInJoined() const noexcept {
    return static_cast<std::size_t>(text_.data() - joined_->text.data());
}

std::size_t TracedText::offsetOf(std::size_t position) const {
    if (joined_ == nullptr) {
        return static_cast<std::size_t>(text_.data() - file_->text().data()) + position;
    }
    position += positionInJoined();
    const auto next =
        std::upper_bound(joined_->runs.begin(), joined_->runs.end(), position,
                         [](std::size_t wanted, const Run& run) { return wanted < run.position; });
    const Run& run = *std::prev(next);
    return run.offset + (position - run.position);
}

Place TracedText::place(std::size_t begin, std::size_t end) const {
    const std::string_view whole = file_->text();
    const bool isAtEnd = begin == size() && begin > 0;
    std::size_t first = isAtEnd ? offsetOf(begin - 1) + 1 : offsetOf(begin);
    std::size_t last = end > begin ? offsetOf(end - 1) + 1 : first;
    if (last > first) {
        while (first > 0 && continuesCharacter(whole, first)) {
            --first;
        }
        while (continuesCharacter(whole, last)) {
            ++last;
        }
    }
    return {file_, first, last - first};
}

Place TracedText::placeOf(std::string_view part) const {
    const auto begin = static_cast<std::size_t>(part.data() - text_.data());
    return place(begin, begin + part.size());
}

std::size_t TracedText::find(std::size_t offset) const {
    if (text_.empty() || offsetOf(0) >= offset) {
        return 0;
    }
    if (offsetOf(size() - 1) < offset) {
        return size();
    }
    if (joined_ == nullptr) {
        return offset - offsetOf(0);
    }
    const auto next =
        std::upper_bound(joined_->runs.begin(), joined_->runs.end(), offset,
                         [](std::size_t wanted, const Run& run) { return wanted < run.offset; });
    const Run& run = *std::prev(next);
    std::size_t found = run.position + (offset - run.offset);
    if (next != joined_->runs.end()) {
        found = std::min(found, next->position); // bytes between two runs are in neither
    }
    return found - positionInJoined();
}

void TextTracer::operator()(std::string_view piece) {
    if (joined_ == nullptr && first_.empty()) {
        first_ = piece.empty() ? first_ : piece;
    } else if (!piece.empty()) {
        join(piece);
    }
}

void TextTracer::join(std::string_view piece) {
    if (joined_ == nullptr) {
        joined_ = std::make_shared<TracedText::Joined>();
        join(std::exchange(first_, {}));
    }
    const TracedText part = source_.part(piece);
    const std::size_t end = joined_->text.size();
    joined_->runs.push_back({end, part.offsetOf(0)});
    if (part.joined_ != nullptr) {
        const std::size_t begin = part.positionInJoined();
        const auto& runs = part.joined_->runs;
        auto run = std::upper_bound(runs.begin(), runs.end(), begin,
                                    [](std::size_t wanted, const TracedText::Run& candidate) {
                                        return wanted < candidate.position;
                                    });
        for (; run != runs.end() && run->position < begin + piece.size(); ++run) {
            joined_->runs.push_back({end + run->position - begin, run->offset});
        }
    }
    joined_->text += piece;
}

TracedText TextTracer::take() {
    TracedText result = source_.part(first_);
    if (joined_ != nullptr) {
        result.text_ = joined_->text;
        result.joined_ = std::move(joined_);
    }
    return result;
}

} // namespace zem::msglib::tool
