#include "outlets/quiet_bar.h"
#include "shell/intake_words.h"
#include "shell/reading_verdict.h"

namespace pinmora {

namespace {

using Why = ReadingVerdict::Why;

bool usesUniversalTime(const ReadingVerdict &verdict) {
    return verdict.better == LogReading::Tolerant;
}

std::string readingOffered(const ReadingVerdict &verdict) {
    return std::string(policyOf(verdict.better).name);
}

std::string readingInForce(const ReadingVerdict &verdict) {
    return usesUniversalTime(verdict) ? "exact" : "tolerant";
}

std::string logsIn(const ReadingVerdict &verdict) {
    return verdict.otherLogs == 0
               ? verdict.log
               : verdict.log + " and " + counted(verdict.otherLogs, "other log", "other logs");
}

void putShifted(const ReadingVerdict &verdict, BarMessage &message) {
    const bool one = verdict.otherLogs == 0;
    const bool universal = usesUniversalTime(verdict);
    message.head = logsIn(verdict) + (one ? " gives its times in " : " give their times in ") +
                   (universal ? "universal time." : "clock time.");
    message.text = std::string("Read as ") + (universal ? "clock time" : "universal time") +
                   " they miss your photos by " + spanText(verdict.by) + ".";
}

void putLeftOut(const ReadingVerdict &verdict, BarMessage &message) {
    message.head = std::to_string(verdict.count) +
                   (verdict.of > 0       ? " of " + std::to_string(verdict.of) + " times"
                    : verdict.count == 1 ? " sentence"
                                         : " sentences") +
                   " in " + verdict.log + (verdict.count == 1 ? " is" : " are") +
                   " left out by the " + readingInForce(verdict) + " reading";
    if (verdict.otherLogs > 0) {
        message.head += ", and some in " + counted(verdict.otherLogs, "other log", "other logs");
    }
    message.head += ".";
    message.text =
        "The " + readingOffered(verdict) + " one takes them" +
        (verdict.of > 0 && usesUniversalTime(verdict) ? ", and all times as universal time." : ".");
}

void putUnread(const ReadingVerdict &verdict, BarMessage &message) {
    message.head = verdict.log + " could not be read.";
    message.text = "The " + readingInForce(verdict) + " reading makes nothing of it; the " +
                   readingOffered(verdict) + " one finds " +
                   counted(verdict.count, "point", "points") + " in it.";
}

void putMoreFits(const ReadingVerdict &verdict, BarMessage &message) {
    message.head =
        logsIn(verdict) + (verdict.otherLogs == 0 ? " fits" : " fit") + " more of your photos.";
    message.text = "With the " + readingOffered(verdict) + " reading, " +
                   counted(verdict.count, "more lies", "more lie") +
                   " within 5 minutes of a point.";
}

} // namespace

BarMessage wordsOf(const ReadingVerdict &verdict, bool hasOffset) {
    BarMessage message{.subject = {}, .head = {}, .text = {}, .choices = {}};
    switch (verdict.why) {
    case Why::Shifted:
        putShifted(verdict, message);
        break;
    case Why::LeftOut:
        putLeftOut(verdict, message);
        break;
    case Why::Unread:
        putUnread(verdict, message);
        break;
    case Why::MoreFits:
        putMoreFits(verdict, message);
        break;
    }
    if (hasOffset) {
        message.text += " Then check the camera clock: it is corrected by an offset.";
    }
    return message;
}

std::string choiceOf(const ReadingVerdict &verdict) {
    if (verdict.why == Why::Shifted) {
        return usesUniversalTime(verdict) ? "Use Universal Time" : "Use Clock Time";
    }
    if (verdict.why == Why::LeftOut) {
        return verdict.count == 1 ? "Read It Too" : "Read Them Too";
    }
    return usesUniversalTime(verdict) ? "Read Tolerantly" : "Read Exactly";
}

std::string spanText(std::chrono::seconds span) {
    using namespace std::chrono;
    const auto minutes = round<std::chrono::minutes>(span);
    const auto hours = floor<std::chrono::hours>(minutes);
    if (hours >= days(2)) {
        return counted(static_cast<std::size_t>(round<days>(span).count()), "day", "days");
    }
    std::string rest = std::to_string((minutes - hours).count()) + " min";
    if (hours.count() == 0) {
        return rest;
    }
    const std::string whole = std::to_string(hours.count()) + " h";
    return minutes == hours ? whole : whole + " " + rest;
}

} // namespace pinmora
