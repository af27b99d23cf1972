#include "tool/catalogue/Identifiers.h"

#include <utility>

namespace zem::msglib::tool {

namespace {

constexpr std::uint32_t highestCode = 0xFFFF;
constexpr unsigned severityShift = 30;
constexpr unsigned facilityShift = 16;

} // namespace

std::uint32_t Identifiers::next(MessageHead& head) {
    const std::uint32_t severity = severityOf(head);
    const std::uint32_t facility = facilityOf(head);
    return severity << severityShift | facility << facilityShift | codeOf(head, facility);
}

std::uint32_t Identifiers::severityOf(MessageHead& head) {
    if (head.severity) {
        lastSeverity_ = head.severity;
        return head.severity->number;
    }
    if (lastSeverity_ && lastSeverity_->number != 0 && !head.isBroken) {
        const std::string last(lastSeverity_->place.text());
        refuse(rules::ambiguousHeader, head, head.keyword,
               "no Severity here: some programs take the last one, " + last +
                   ", and others take Success",
               {{"write Severity=" + last + " or Severity=Success"},
                {"the last one is here", lastSeverity_->place}});
    }
    return 0;
}

std::uint32_t Identifiers::facilityOf(MessageHead& head) {
    if (head.facility) {
        lastFacility_ = head.facility;
        return head.facility->number;
    }
    if (lastFacility_ && lastFacility_->number != 0 && !head.isBroken) {
        const std::string last(lastFacility_->place.text());
        refuse(rules::ambiguousHeader, head, head.keyword,
               "no Facility here: some programs take the last one, " + last +
                   ", and others take facility 0",
               {{"write Facility=" + last + ", or a name that FacilityNames gives the number 0"},
                {"the last one is here", lastFacility_->place}});
    }
    return 0;
}

std::uint32_t Identifiers::codeOf(MessageHead& head, std::uint32_t facility) {
    std::uint64_t& lastInFacility = lastCodes_[facility];
    const std::uint64_t code = head.isRelative ? lastCode_ + head.value : head.value;
    const std::uint64_t codeInFacility = lastInFacility + head.value;
    if (head.isRelative && code != codeInFacility && !head.isBroken) {
        const std::string inFile = std::to_string(code);
        const std::string inFacility = std::to_string(codeInFacility);
        refuse(rules::ambiguousHeader, head, head.number,
               "this number is " + inFile + " if counted over the file, and " + inFacility +
                   " if counted in its facility",
               {{"write MessageId=" + inFile + " or MessageId=" + inFacility}});
    }
    lastCode_ = code;
    lastInFacility = code;
    if (code > highestCode) {
        refuse(rules::fileSyntax, head, head.number,
               "the number " + std::to_string(code) +
                   " is too high: a MessageId has 16 bits, up to 65535");
        lastCode_ = lastInFacility = 0;
    }
    return static_cast<std::uint32_t>(code & highestCode);
}

void Identifiers::refuse(const Rule& rule, MessageHead& head, Place place, std::string words,
                         std::vector<Note> notes) {
    head.isBroken = true;
    diagnostics_.report(rule, place, std::move(words), std::move(notes));
}

} // namespace zem::msglib::tool
