#pragma once

#include "outlets/controls.h"
#include "platform/defaults.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// A setting that says what comes with the program, in one of a few words, or a text of one's own,
/// mostly an address. What is typed is judged at once; it is stored when typing has ended, if it is
/// fit. Until then, what was set before stays in force.
class AddressPreference {
public:
    /// Why a text cannot be stored, as a sentence; "" when it can.
    using Judge = std::string (*)(const std::string &text);

    /// The settings must outlive it. `words`: what is stored for the choices before that of a text
    /// of one's own, which is the last; "" is stored as nothing at all.
    AddressPreference(Defaults &defaults, std::string_view key, std::vector<std::string> words,
                      Judge judge);

    /// To be watched, as is the field; the text counts only with the last choice.
    Observable<std::size_t> choice;
    CheckedField field;

    bool isOwn() const { return choice.get() == words_.size(); }
    /// Stores it at once, unless it is a text of one's own that is not fit yet.
    void choose(std::size_t chosen);
    /// What stands in the field now, while a person types.
    void type(const std::string &text);
    /// Typing has ended: stores what is fit. False: something is typed or chosen that is not.
    bool takeOver();
    /// Back to what is in force; false when nothing else was chosen or typed.
    bool takeBack();

private:
    std::string stored() const;
    void store(const std::string &text);
    bool isInForce() const;
    std::string typed() const;
    std::size_t choiceOf(const std::string &stored) const;
    void follow();
    void showProblem();

    Defaults &defaults_;
    const std::string_view key_; ///< a constant's
    const std::vector<std::string> words_;
    const Judge judge_;
    std::string lastOwn_; ///< comes back when a text of one's own is chosen again
    NotificationCentre::Observation changed_;
};

} // namespace pinmora
