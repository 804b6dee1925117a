#pragma once

#include "outlets/observable.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

/// Which of several messages is seen.
enum class BarWeight {
    Answer, ///< to what the person has just done; the newest first
    Offer,  ///< something to choose, which changes what comes out in the end
    Note,
};

/// Something a person should know and need not answer.
struct BarMessage {
    struct Choice {
        std::string title;
        std::function<void()> act;
    };

    std::string subject;               ///< what it is about; a later message on it takes its place
    std::string head;                  ///< shown first and bold; may be ""
    std::string text;                  ///< one line
    std::vector<Choice> choices;       ///< at most two
    std::function<void()> dismissed{}; ///< on closing it without a choice; may be empty
    BarWeight weight = BarWeight::Note;

    friend bool operator==(const BarMessage &a, const BarMessage &b) {
        return a.subject == b.subject && a.head == b.head && a.text == b.text;
    }
};

/// The line under the tool bar: one message at a time, the weightiest first, of equals the oldest.
class QuietBar {
public:
    /// The message that is seen; nothing when there is none.
    const std::optional<BarMessage> &message() const { return shown_.get(); }
    Observable<std::optional<BarMessage>> &shown() { return shown_; }
    /// How many more there are behind the one that is seen.
    Observable<std::size_t> &waiting() { return waiting_; }

    void post(BarMessage message);
    /// Takes back what was said on a subject, seen already or not.
    void withdraw(const std::string &subject);

    /// What a click on a choice of the seen message does: the message goes, then it acts.
    void choose(std::size_t index);
    /// What closing it does.
    void dismiss();

private:
    BarMessage takeShown();
    void showNext();

    std::deque<BarMessage> messages_; ///< the first is seen
    Observable<std::optional<BarMessage>> shown_;
    Observable<std::size_t> waiting_;
};

} // namespace pinmora
