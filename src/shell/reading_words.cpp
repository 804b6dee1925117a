#include "outlets/quiet_bar.h"
#include "platform/translation.h"
#include "shell/offset_words.h"
#include "shell/reading_verdict.h"

namespace pinmora {

namespace {

using Why = ReadingVerdict::Why;

bool usesUniversalTime(const ReadingVerdict &verdict) {
    return verdict.better == LogReading::Tolerant;
}

//: The name of a way to read logs; stands in for "%1" in "The %1 reading".
std::string readingName(LogReading reading) {
    return reading == LogReading::Exact ? translated("shell", "exact")
                                        : translated("shell", "tolerant");
}

std::string readingInForce(const ReadingVerdict &verdict) {
    return readingName(otherThan(verdict.better));
}

std::string shiftedHead(const ReadingVerdict &verdict) {
    const bool universal = usesUniversalTime(verdict);
    if (verdict.otherLogs == 0) {
        return universal ? translated("shell", "%1 gives its times in universal time.")
                         : translated("shell", "%1 gives its times in clock time.");
    }
    return universal
               ? translated("shell", "%1 and %n other logs give their times in universal time.",
                            "%1 and %n other log give their times in universal time.",
                            verdict.otherLogs)
               : translated("shell", "%1 and %n other logs give their times in clock time.",
                            "%1 and %n other log give their times in clock time.",
                            verdict.otherLogs);
}

void putShifted(const ReadingVerdict &verdict, BarMessage &message) {
    message.head = filled(shiftedHead(verdict), {verdict.log});
    message.text =
        filled(usesUniversalTime(verdict)
                   ? translated("shell", "Read as clock time they miss your photos by %1.")
                   : translated("shell", "Read as universal time they miss your photos by %1."),
               {spanText(verdict.by)});
}

std::string leftOutHead(const ReadingVerdict &verdict) {
    if (verdict.otherLogs == 0) {
        //: %1: the name of a log, %2: "exact" or "tolerant"
        return verdict.of == 0
                   ? translated("shell", "%n sentences in %1 are left out by the %2 reading.",
                                "%n sentence in %1 is left out by the %2 reading.", verdict.count)
                   //: %3: how many times there are in the log
                   : translated("shell", "%n of %3 times in %1 are left out by the %2 reading.",
                                "%n of %3 times in %1 is left out by the %2 reading.",
                                verdict.count);
    }
    //: %1: the name of a log, %2: "exact" or "tolerant", %4: "2 other logs"
    return verdict.of == 0
               ? translated("shell",
                            "%n sentences in %1 are left out by the %2 reading, and some in %4.",
                            "%n sentence in %1 is left out by the %2 reading, and some in %4.",
                            verdict.count)
               //: %3: how many times there are in the log
               : translated("shell",
                            "%n of %3 times in %1 are left out by the %2 reading, and some in %4.",
                            "%n of %3 times in %1 is left out by the %2 reading, and some in %4.",
                            verdict.count);
}

void putLeftOut(const ReadingVerdict &verdict, BarMessage &message) {
    //: Follows "and some in".
    const std::string others =
        translated("shell", "%n other logs", "%n other log", verdict.otherLogs);
    message.head = filled(leftOutHead(verdict), {verdict.log, readingInForce(verdict),
                                                 std::to_string(verdict.of), others});
    message.text =
        verdict.of > 0 && usesUniversalTime(verdict)
            ? translated("shell", "The tolerant one takes them, and all times as universal time.")
            : filled(translated("shell", "The %1 one takes them."), {readingName(verdict.better)});
}

void putUnread(const ReadingVerdict &verdict, BarMessage &message) {
    message.head = filled(translated("shell", "%1 could not be read."), {verdict.log});
    //: %1, %2: "exact" or "tolerant"
    message.text = filled(
        translated("shell", "The %1 reading makes nothing of it; the %2 one finds %n points in it.",
                   "The %1 reading makes nothing of it; the %2 one finds %n point in it.",
                   verdict.count),
        {readingInForce(verdict), readingName(verdict.better)});
}

void putMoreFits(const ReadingVerdict &verdict, BarMessage &message) {
    message.head =
        filled(verdict.otherLogs == 0
                   ? translated("shell", "%1 fits more of your photos.")
                   : translated("shell", "%1 and %n other logs fit more of your photos.",
                                "%1 and %n other log fit more of your photos.", verdict.otherLogs),
               {verdict.log});
    //: Of photos. %1: "exact" or "tolerant"
    message.text = filled(
        translated("shell", "With the %1 reading, %n more lie within 5 minutes of a point.",
                   "With the %1 reading, %n more lies within 5 minutes of a point.", verdict.count),
        {readingName(verdict.better)});
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
        message.text +=
            " " + translated("shell", "Then check the camera clock: it is corrected by an offset.");
    }
    return message;
}

std::string choiceOf(const ReadingVerdict &verdict) {
    if (verdict.why == Why::Shifted) {
        return usesUniversalTime(verdict) ? translated("shell", "Use Universal Time")
                                          : translated("shell", "Use Clock Time");
    }
    if (verdict.why == Why::LeftOut) {
        return translated("shell", "Read Them Too", "Read It Too", verdict.count);
    }
    return usesUniversalTime(verdict) ? translated("shell", "Read Tolerantly")
                                      : translated("shell", "Read Exactly");
}

std::string spanText(std::chrono::seconds span) {
    using namespace std::chrono;
    const auto minutes = round<std::chrono::minutes>(span);
    const auto hours = floor<std::chrono::hours>(minutes);
    if (hours >= days(2)) {
        return translated("shell", "%n days", "%n day",
                          static_cast<std::size_t>(round<days>(span).count()));
    }
    return durationWords(minutes);
}

} // namespace pinmora
