// Every file the program rewrites in place of the user's, on a disk that is full and on media
// that is read-only: the old file must come through byte for byte, nothing half-written may be
// left beside it, and the failure must reach the caller the way the feature reports it.

#include "../support/scratchmount.h"
#include "../support/treedigest.h"

#include "browserext/browserextremover.h"
#include "forceremove/toolrunner.h"
#include "links/linkmanager.h"
#include "platform/environment.h"
#include "platform/sandbox/sandboxplatform.h"
#include "uninstall/uninstallmanager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

enum Medium { Full, ReadOnly };
enum Rewrite { History, ChromiumPreferences, FirefoxDatabase, TaskList, Settings };

const QString ChromiumId = QStringLiteral("abcdefghijklmnopabcdefghijklmnop");
const QString FirefoxId = QStringLiteral("helper@example.org");

bool write(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QString fromPlatform(const std::wstring& path)
{
    return QDir::fromNativeSeparators(QString::fromStdWString(path));
}

BrowserExt extension(const QString& browser, const QString& id)
{
    BrowserExt ext;
    ext.browser = browser;
    ext.id = id;
    return ext;
}

std::string refusedNamespace;

} // namespace

class TestFullMedia : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (!refusedNamespace.empty())
            QSKIP(qPrintable(QStringLiteral("no private mount namespace, so no small file system to fill: ")
                + QString::fromStdString(refusedNamespace)));
        QVERIFY(m_dir.isValid());
        QVERIFY(QDir(m_dir.path()).mkpath(QStringLiteral("media")));
        // The settings store lives on the small file system too; Qt reads this once.
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_dir.filePath(QStringLiteral("media/config"))));
    }

    void theOldFileSurvivesAndTheFailureIsReported_data()
    {
        QTest::addColumn<int>("medium");
        QTest::addColumn<int>("rewrite");
        const char* const media[] = { "full disk", "read-only media" };
        const char* const files[] = { "uninstall history", "Chromium Preferences", "Firefox extensions.json",
            "sandbox task list", "settings" };
        for (int m : { Full, ReadOnly }) {
            for (int r : { History, ChromiumPreferences, FirefoxDatabase, TaskList, Settings })
                QTest::addRow("%s, %s", files[r], media[m]) << m << r;
        }
    }

    void theOldFileSurvivesAndTheFailureIsReported()
    {
        QFETCH(int, medium);
        QFETCH(int, rewrite);
        const QString media = m_dir.filePath(QStringLiteral("media"));
        scratchmount::Tmpfs tmpfs(media.toStdString(), 1024);
        if (!tmpfs.error().empty())
            QSKIP(qPrintable(
                QStringLiteral("cannot mount a small file system: ") + QString::fromStdString(tmpfs.error())));
        platform::SandboxPlatform machine((media + QStringLiteral("/machine")).toStdWString());
        platform::setCurrent(&machine);
        const auto restore = qScopeGuard([] { platform::setCurrent(nullptr); });
        const QString roaming = fromPlatform(machine.environment().roamingAppData());
        const QString local = fromPlatform(machine.environment().localAppData());

        // Each old file names what the rewrite would take out of it, so a rewrite is due.
        const QString chromium = local + QStringLiteral("/Google/Chrome/User Data/Default");
        const QString firefox = roaming + QStringLiteral("/Mozilla/Firefox/Profiles/abc.default");
        const QString tasks = media + QStringLiteral("/machine/") + SandboxToolRunner::tasksFileName();
        const QByteArray preferences = "{\"extensions\":{\"settings\":{\"" + ChromiumId.toUtf8()
            + "\":{\"state\":1}},\"pinned_extensions\":[\"" + ChromiumId.toUtf8() + "\"]}}";
        std::unique_ptr<UninstallManager> manager;
        std::unique_ptr<LinkManager> links;
        switch (rewrite) {
        case History:
            QVERIFY(write(UninstallManager::historyFilePath(),
                "[{\"name\":\"Old Tool\",\"publisher\":\"Acme\",\"installLocation\":\"\",\"displayIcon\":\"\","
                "\"uninstalledAt\":\"2025-03-01T14:22:05\"}]"));
            manager = std::make_unique<UninstallManager>();
            QCOMPARE(manager->history().size(), 1);
            break;
        case ChromiumPreferences:
            QVERIFY(QDir().mkpath(chromium + QStringLiteral("/Extensions")));
            QVERIFY(write(chromium + QStringLiteral("/Preferences"), preferences));
            QVERIFY(write(chromium + QStringLiteral("/Secure Preferences"), preferences));
            break;
        case Settings:
            QVERIFY(write(
                media + QStringLiteral("/links.json"), "{\"metadata\":{\"supported_languages\":[\"en\",\"de\"]}}"));
            QVERIFY(write(media + QStringLiteral("/config/Brightfen/Norvale.conf"), "[General]\nlanguage=en\n"));
            links = std::make_unique<LinkManager>(media + QStringLiteral("/links.json"));
            break;
        case TaskList:
            QVERIFY(write(tasks, "\"\\Foo Updater\",\"N/A\",\"Ready\"\n\"\\Other\",\"N/A\",\"Ready\"\n"));
            break;
        case FirefoxDatabase:
            QVERIFY(write(firefox + QStringLiteral("/extensions.json"),
                "{\"schemaVersion\":35,\"addons\":[{\"id\":\"" + FirefoxId.toUtf8()
                    + "\"},{\"id\":\"keep@example.org\"}]}"));
            break;
        }

        QVERIFY(medium == Full ? tmpfs.fill() : tmpfs.makeReadOnly());
        const std::vector<std::filesystem::path> filler { std::filesystem::path(media.toStdString()) / ".filler" };
        const treedigest::Digest before = treedigest::of(media.toStdString(), filler);

        switch (rewrite) {
        case History: {
            InstalledApp app;
            app.name = QStringLiteral("New Tool");
            const QRegularExpression failed(QStringLiteral("^\\[UninstallManager\\] Cannot save history:"));
            QTest::ignoreMessage(QtWarningMsg, failed);
            QTest::ignoreMessage(QtWarningMsg, failed);
            manager->recordUninstall(app);
            // The file could not follow, but the list does: the residue scan still gets the program.
            QCOMPARE(manager->history().size(), 2);
            QVERIFY(!manager->saveHistory());
            break;
        }
        case ChromiumPreferences: {
            const BrowserExtRemover::Result result
                = BrowserExtRemover::remove(extension(QStringLiteral("Google Chrome"), ChromiumId));
            QVERIFY(!result.success);
            QCOMPARE(result.error,
                QStringLiteral("Cannot patch %1/Preferences\nCannot patch %1/Secure Preferences").arg(chromium));
            break;
        }
        case Settings: {
            // Nothing is reported: the choice holds for this run and the stored one for the next.
            // (Qt keeps a write that failed pending for the whole process, so an earlier case may
            // have left the other language current.)
            const QString other
                = links->currentLanguage() == QLatin1String("de") ? QStringLiteral("en") : QStringLiteral("de");
            links->setLanguage(other);
            QCOMPARE(links->currentLanguage(), other);
            break;
        }
        case TaskList: {
            // The sandbox's schtasks reports a failed delete as the real one does: exit code 1.
            const ToolResult result = SandboxToolRunner(media + QStringLiteral("/machine"))
                                          .run(QStringLiteral("schtasks"),
                                              { QStringLiteral("/delete"), QStringLiteral("/tn"),
                                                  QStringLiteral("\\Foo Updater"), QStringLiteral("/f") },
                                              1000);
            QCOMPARE(result.exitCode, 1);
            break;
        }
        case FirefoxDatabase: {
            const BrowserExtRemover::Result result
                = BrowserExtRemover::remove(extension(QStringLiteral("Mozilla Firefox"), FirefoxId));
            QVERIFY(!result.success);
            QCOMPARE(result.error, QStringLiteral("Cannot write %1/extensions.json").arg(firefox));
            break;
        }
        }

        const treedigest::Digest after = treedigest::of(media.toStdString(), filler);
        const std::vector<std::string> spoilt = treedigest::lost(before, after);
        for (const std::string& path : spoilt)
            qWarning("changed: %s", path.c_str());
        QVERIFY(spoilt.empty());
        QCOMPARE(after.size(), before.size()); // no half-written copy left beside the old file
    }

private:
    QTemporaryDir m_dir;
};

int main(int argc, char** argv)
{
    // Before Qt starts any thread: a process with several cannot change its mount namespace.
    refusedNamespace = scratchmount::enterPrivateNamespace();
    QCoreApplication app(argc, argv);
    TestFullMedia test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_fullmedia.moc"
