#include "platform/defaults.h"

#include <QSettings>
#include <QStringList>

#include <utility>

namespace pinmora {

namespace {

QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

Defaults::Defaults()
    : settings_(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                            QStringLiteral("Pinmora"), QStringLiteral("Pinmora"))) {
    settings_->setFallbacksEnabled(false);
}

Defaults::~Defaults() = default;

std::optional<std::string> Defaults::text(std::string_view key) const {
    const QVariant value = settings_->value(toQt(key));
    if (!value.isValid()) {
        return std::nullopt;
    }
    // In a file edited by hand, a text with commas and without quotes is read as a list.
    return value.toStringList().join(QStringLiteral(", ")).toStdString();
}

void Defaults::setText(std::string_view key, std::string_view value) {
    const bool isAnother = text(key) != value;
    settings_->setValue(toQt(key), toQt(value));
    if (isAnother) {
        changes_.post(key);
    }
}

void Defaults::remove(std::string_view key) {
    const bool wasThere = settings_->contains(toQt(key));
    settings_->remove(toQt(key));
    if (wasThere) {
        changes_.post(key);
    }
}

bool Defaults::synchronize() {
    settings_->sync();
    return settings_->status() == QSettings::NoError;
}

NotificationCentre::Observation Defaults::onChange(std::string_view key,
                                                   std::function<void()> told) {
    return changes_.addObserver(key, [told = std::move(told)](const Notification &) { told(); });
}

} // namespace pinmora
