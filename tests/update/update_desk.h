#pragma once

#include "places/test_service.h"

#include "platform/defaults.h"
#include "update/update_test.h"

#include <QTest>

#include <filesystem>

/// The update check of a program of version 2.1, with a server of the test's own.
struct UpdateDesk {
    explicit UpdateDesk(std::chrono::milliseconds timeout = pinmora::updateTimeout)
        : update(defaults, "2.1", timeout) {}

    /// Forgets the settings of earlier tests.
    static void clear() {
        std::filesystem::remove_all(qEnvironmentVariable("XDG_CONFIG_HOME").toStdString() +
                                    "/Pinmora");
    }
    static QByteArray list(const QByteArray &entries) {
        return "<?xml version=\"1.0\"?>\n<plist version=\"1.0\"><dict>" + entries +
               "</dict></plist>";
    }
    static QByteArray version(const QByteArray &number) {
        return "<key>productVersion</key><string>" + number + "</string>";
    }
    static QByteArray addresses(const QByteArray &entries) {
        return "<key>productDownloadURL</key>" + entries;
    }
    static void redirect(const TestService::Request &request, const QByteArray &target) {
        request.send(
            TestService::whole("<p>Elsewhere</p>", "302 Found", "Location: " + target + "\r\n"));
    }

    pinmora::ProgDict program(const char *path = "/version.plist") const {
        return {{"progName", "Pinmora"}, {"progPlist", service.address() + path}};
    }
    /// Whether the check ends; what it did is seen then.
    bool ends() const {
        return QTest::qWaitFor([this] { return !update.isChecking(); });
    }
    QString setting(const char *key) const {
        return QString::fromStdString(defaults.text(key).value_or("-"));
    }

    pinmora::Defaults defaults;
    TestService service;
    pinmora::updateTest update;
};
