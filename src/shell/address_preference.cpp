#include "shell/address_preference.h"

#include "platform/number_text.h"

#include <algorithm>
#include <utility>

namespace pinmora {

AddressPreference::AddressPreference(Defaults &defaults, std::string_view key,
                                     std::vector<std::string> words, Judge judge)
    : defaults_(defaults), key_(key), words_(std::move(words)), judge_(judge),
      changed_(defaults.onChange(key, [this] { follow(); })) {
    follow();
}

void AddressPreference::choose(std::size_t chosen) {
    if (chosen == choice.get()) {
        return;
    }
    if (chosen < words_.size()) {
        store(words_[chosen]);
        follow(); // also where that was in force all the time
    } else {
        choice.set(chosen);
        field.enabled.set(true);
        takeOver();
    }
}

void AddressPreference::type(const std::string &text) {
    field.text.set(text);
    showProblem();
}

bool AddressPreference::takeOver() {
    showProblem();
    if (isInForce()) {
        return true;
    }
    if (!field.problem.get().empty()) {
        return false;
    }
    store(typed());
    return true;
}

bool AddressPreference::takeBack() {
    if (isInForce()) {
        return false;
    }
    follow();
    return true;
}

std::string AddressPreference::stored() const {
    return defaults_.text(key_).value_or("");
}

void AddressPreference::store(const std::string &text) {
    if (text.empty()) {
        defaults_.remove(key_);
    } else {
        defaults_.setText(key_, text);
    }
    defaults_.synchronize();
}

bool AddressPreference::isInForce() const {
    return choice.get() == choiceOf(stored()) && (!isOwn() || typed() == stored());
}

std::string AddressPreference::typed() const {
    return std::string(trimmed(field.text.get()));
}

std::size_t AddressPreference::choiceOf(const std::string &stored) const {
    return static_cast<std::size_t>(std::find(words_.begin(), words_.end(), stored) -
                                    words_.begin());
}

void AddressPreference::follow() {
    const std::string now = stored();
    choice.set(choiceOf(now));
    if (isOwn()) {
        lastOwn_ = now;
    }
    if (!words_.empty()) { // others say themselves when there is something to type
        field.enabled.set(isOwn());
    }
    field.text.set(lastOwn_);
    showProblem();
}

void AddressPreference::showProblem() {
    field.problem.set(isOwn() ? judge_(typed()) : std::string());
}

} // namespace pinmora
