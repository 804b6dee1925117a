#include "ui/file_names.h"
#include "ui/mount_points.h"

#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <filesystem>
#include <fstream>

using namespace pinmora;

/// Paths between the toolkit's texts and the system's bytes.
class PathsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void urlsKeepTheirBytes_data();
    void urlsKeepTheirBytes();
    void shownNamesAreFound_data();
    void shownNamesAreFound();
    void mountTableIsRead();
};

void PathsTest::urlsKeepTheirBytes_data() {
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<QByteArray>("path");
    const auto row = [](const char *name, const QByteArray &url, const char *path) {
        QTest::newRow(name) << url << QByteArray(path);
    };
    row("not UTF-8", "file:///tmp/caf%E9.jpg", "/tmp/caf\xE9.jpg");
    row("UTF-8", "file:///tmp/caf%C3%A9.jpg", "/tmp/caf\xC3\xA9.jpg");
    row("not escaped", "file:///tmp/caf\xC3\xA9 1.jpg", "/tmp/caf\xC3\xA9 1.jpg");
    row("signs of a URL", "file:///a%20b/50%25%23%3F%2B+.jpg", "/a b/50%#?++.jpg");
    row("by name", "file://localhost/a.jpg", "/a.jpg");
    row("this machine", "file://" + QSysInfo::machineHostName().toLatin1() + "/a.jpg", "/a.jpg");
    row("elsewhere", "file://elsewhere.invalid/a.jpg", "");
    row("no file", "https://localhost/a.jpg", "");
}

void PathsTest::urlsKeepTheirBytes() {
    QFETCH(QByteArray, url);
    QFETCH(QByteArray, path);
    QCOMPARE(QByteArray::fromStdString(filePath(QUrl::fromEncoded(url))), path);
}

void PathsTest::shownNamesAreFound_data() {
    QTest::addColumn<QByteArrayList>("there");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QByteArray>("found");
    const QString lost = QStringLiteral("caf\uFFFD");
    QTest::newRow("as it is") << QByteArrayList{"caf\xC3\xA9"} << QString::fromUtf8("caf\xC3\xA9")
                              << QByteArray("caf\xC3\xA9");
    QTest::newRow("not UTF-8") << QByteArrayList{"caf\xE9", "cafe"} << lost
                               << QByteArray("caf\xE9");
    QTest::newRow("folder too") << QByteArrayList{"caf\xE9/\xE9.jpg"}
                                << lost + QStringLiteral("/\uFFFD.jpg")
                                << QByteArray("caf\xE9/\xE9.jpg");
    QTest::newRow("two alike") << QByteArrayList{"caf\xE9", "caf\xE8"} << lost << lost.toUtf8();
    QTest::newRow("really so") << QByteArrayList{"caf\xE9", lost.toUtf8()} << lost << lost.toUtf8();
    QTest::newRow("gone") << QByteArrayList{"a"} << QStringLiteral("b/c") << QByteArray("b/c");
}

void PathsTest::shownNamesAreFound() {
    QFETCH(QByteArrayList, there);
    QFETCH(QString, shown);
    QFETCH(QByteArray, found);
    const QTemporaryDir folder;
    const std::filesystem::path base = folder.path().toStdString();
    for (const QByteArray &name : there) {
        const std::filesystem::path file = base / name.toStdString();
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << "x";
        QVERIFY(std::filesystem::exists(file));
    }
    QCOMPARE(QByteArray::fromStdString(filePath(folder.filePath(shown))),
             QByteArray::fromStdString(base / found.toStdString()));
    std::filesystem::remove_all(base); // the toolkit removes no such names
}

void PathsTest::mountTableIsRead() {
    const char *const table = "proc /proc proc rw 0 0\n"
                              "/dev/sda1 / ext4 rw 0 0\n"
                              "/dev/sdb1 /media/ann/EOS\\040A\\134\\303\\251 vfat rw 0 0\n"
                              "/dev/sdb1 /media/ann/EOS\\040A\\134\\303\\251 vfat rw 0 0\n"
                              "/dev/sdc1 /run/media/ann/GPS\\04 vfat rw 0 0\n"
                              "/dev/sdd1 /mnt fuseblk rw 0 0\n"
                              "/dev/sde1 /mntx ext4 rw 0 0\n"
                              "nas:/photos /mnt/nas nfs4 rw 0 0\n"
                              "/dev/sdf1";
    QCOMPARE(mountPointsIn(table), (std::vector<std::string>{"/media/ann/EOS A\\\xC3\xA9",
                                                             "/run/media/ann/GPS\\04", "/mnt"}));
}

QTEST_GUILESS_MAIN(PathsTest)
#include "paths_test.moc"
