// Every feature that deletes, driven through its own scan and clean, against trees that hold
// links out of the target, links back up, loops, outside folders mounted inside, and entries
// swapped for links between the scan and the clean. Whatever lies outside the target must come
// through byte for byte.

#include "../support/scratchmount.h"
#include "../support/treedigest.h"

#include "browserext/browserextremover.h"
#include "cleanup/cleanupscanner.h"
#include "forceremove/forceremovescanner.h"
#include "platform/environment.h"
#include "platform/sandbox/sandboxplatform.h"
#include "residue/residuescanner.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>

namespace fs = std::filesystem;

namespace {

enum class Attack {
    FolderLinkOut,
    FileLinkOut,
    LinkUp,
    LinkLoop,
    MountedOutside,
    EntrySwapped,
    TargetSwapped,
    ParentSwapped,
};

const char* const AttackNames[] = { "link to outside folder", "link to outside file", "link to parent/home",
    "link loop", "mount of outside", "race: entry swapped", "race: target swapped", "race: parent swapped" };

bool isRace(Attack attack)
{
    return attack >= Attack::EntrySwapped;
}

fs::path fsPath(const QString& path)
{
    return fs::path(path.toStdString());
}

bool write(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// A link made without asking what it points at; the target may be missing or the link itself.
bool link(const QString& target, const QString& at)
{
    QDir().mkpath(QFileInfo(at).path());
    std::error_code error;
    fs::create_symlink(fsPath(target), fsPath(at), error);
    return !error;
}

bool removeAll(const QString& path)
{
    std::error_code error;
    fs::remove_all(fsPath(path), error);
    return !error;
}

// A sandbox machine with a victim tree beside it and a home full of the user's things.
class Machine {
public:
    Machine()
        : m_platform(m_dir.filePath(QStringLiteral("machine")).toStdWString())
    {
        platform::setCurrent(&m_platform);
        write(victim(QStringLiteral("docs/thesis.doc")), QByteArray(3000, 't'));
        write(victim(QStringLiteral("docs/deep/photo.jpg")), QByteArray(5000, 'p'));
        write(victim(QStringLiteral("file.txt")), "the only copy");
        write(home(QStringLiteral("Documents/taxes.xls")), QByteArray(700, 'x'));
    }
    ~Machine() { platform::setCurrent(nullptr); }

    QString base() const { return m_dir.path(); }
    QString victim(const QString& relative = QString()) const
    {
        return m_dir.filePath(QStringLiteral("victim/") + relative);
    }
    QString home(const QString& relative = QString()) const
    {
        return env(m_platform.environment().userProfile()) + QLatin1Char('/') + relative;
    }
    QString drive(const wchar_t* windowsPath) const { return env(m_platform.environment().mapPath(windowsPath)); }
    QString roaming() const { return env(m_platform.environment().roamingAppData()); }
    QString local() const { return env(m_platform.environment().localAppData()); }

private:
    static QString env(const std::wstring& path) { return QDir::fromNativeSeparators(QString::fromStdWString(path)); }

    QTemporaryDir m_dir;
    mutable platform::SandboxPlatform m_platform;
};

// One deleting feature: where its target lies, and its scan and clean as the program runs them.
class Feature {
public:
    virtual ~Feature() = default;
    virtual QString target() const = 0;
    virtual bool isFile() const { return false; }
    // The junk a scan must find; residue ignores folders smaller than its thresholds.
    virtual int junkBytes() const { return 4096; }
    // Lays out the target with some real junk in it, so a clean that did nothing is caught.
    bool plant() const
    {
        return write(isFile() ? target() : target() + QStringLiteral("/junk.bin"), QByteArray(junkBytes(), 'j'));
    }
    virtual bool scan() { return true; }
    virtual bool clean() = 0;
};

bool arrived(QSignalSpy& spy)
{
    return !spy.isEmpty() || spy.wait(20000);
}

class CleanupFeature final : public Feature {
public:
    explicit CleanupFeature(const Machine& m)
        : m_target(m.drive(L"C:/Windows/SoftwareDistribution/Download"))
    {
    }
    QString target() const override { return m_target; }
    bool scan() override
    {
        m_scanner = std::make_unique<CleanupScanner>();
        QSignalSpy done(m_scanner.get(), &CleanupScanner::scanFinished);
        m_scanner->scan();
        return arrived(done);
    }
    bool clean() override
    {
        const QList<JunkCategory>& table = m_scanner->categories();
        const auto row = std::find_if(
            table.cbegin(), table.cend(), [](const JunkCategory& c) { return c.id == QLatin1String("wu_cache"); });
        QSignalSpy done(m_scanner.get(), &CleanupScanner::cleanFinished);
        m_scanner->clean({ int(row - table.cbegin()) });
        return arrived(done);
    }

private:
    const QString m_target;
    std::unique_ptr<CleanupScanner> m_scanner;
};

// Residue removes an orphaned data folder whole and empties a cache folder in place.
class ResidueFeature final : public Feature {
public:
    ResidueFeature(const Machine& m, bool orphan)
        : m_target(
            orphan ? m.roaming() + QStringLiteral("/Orphan Tool") : m.local() + QStringLiteral("/Prog Tool/Cache"))
        , m_bytes(orphan ? 600 * 1024 : 1200 * 1024)
    {
    }
    QString target() const override { return m_target; }
    int junkBytes() const override { return m_bytes; }
    bool scan() override
    {
        m_scanner = std::make_unique<ResidueScanner>();
        QSignalSpy done(m_scanner.get(), &ResidueScanner::scanFinished);
        m_scanner->scan();
        return arrived(done);
    }
    bool clean() override
    {
        const QList<ResidueItem> items = m_scanner->results();
        int index = -1;
        for (int i = 0; i < items.size(); ++i) {
            if (items.at(i).path == m_target)
                index = i;
        }
        if (index < 0)
            return false;
        QSignalSpy done(m_scanner.get(), &ResidueScanner::cleanFinished);
        m_scanner->clean({ index });
        return arrived(done);
    }

private:
    const QString m_target;
    const int m_bytes;
    std::unique_ptr<ResidueScanner> m_scanner;
};

class ForceRemoveFeature final : public Feature {
public:
    ForceRemoveFeature(const Machine& m, ForceRemoveKind kind)
        : m_kind(kind)
        , m_target(kind == ForceRemoveKind::StartupShortcut
                  ? m.roaming() + QStringLiteral("/Microsoft/Windows/Start Menu/Programs/Startup/Foo App.lnk")
                  : m.drive(L"C:/Program Files/Foo App"))
    {
    }
    QString target() const override { return m_target; }
    bool isFile() const override { return m_kind == ForceRemoveKind::StartupShortcut; }
    bool scan() override
    {
        m_scanner = std::make_unique<ForceRemoveScanner>();
        QSignalSpy done(m_scanner.get(), &ForceRemoveScanner::scanFinished);
        InstalledApp app;
        app.name = QStringLiteral("Foo App");
        app.publisher = QStringLiteral("Acme Software Inc");
        app.installLocation = QStringLiteral("C:\\Program Files\\Foo App");
        m_scanner->scan(app);
        return arrived(done);
    }
    bool clean() override
    {
        const QList<ForceRemoveItem> items = m_scanner->items();
        int index = -1;
        for (int i = 0; i < items.size(); ++i) {
            if (items.at(i).kind == m_kind)
                index = i;
        }
        // A shortcut that is a link to a folder or to itself is not a shortcut the scan lists.
        if (index < 0)
            return isFile();
        QSignalSpy done(m_scanner.get(), &ForceRemoveScanner::executeFinished);
        m_scanner->execute({ index });
        return arrived(done);
    }

private:
    const ForceRemoveKind m_kind;
    const QString m_target;
    std::unique_ptr<ForceRemoveScanner> m_scanner;
};

// Extensions have no separate scan: the remover finds the folders itself when asked.
class BrowserExtFeature final : public Feature {
public:
    enum Kind { ChromiumFolder, FirefoxFolder, FirefoxPackage };

    BrowserExtFeature(const Machine& m, Kind kind)
        : m_kind(kind)
    {
        m_ext.id = kind == ChromiumFolder ? QStringLiteral("abcdefghijklmnopabcdefghijklmnop")
                                          : QStringLiteral("helper@example.org");
        m_ext.browser = kind == ChromiumFolder ? QStringLiteral("Google Chrome") : QStringLiteral("Mozilla Firefox");
        const QString profile = kind == ChromiumFolder
            ? m.local() + QStringLiteral("/Google/Chrome/User Data/Default/Extensions/")
            : m.roaming() + QStringLiteral("/Mozilla/Firefox/Profiles/abc.default/extensions/");
        m_target = profile + m_ext.id + (kind == FirefoxPackage ? QStringLiteral(".xpi") : QString());
    }
    QString target() const override { return m_target; }
    bool isFile() const override { return m_kind == FirefoxPackage; }
    bool clean() override { return BrowserExtRemover::remove(m_ext).error != QLatin1String("Invalid extension ID"); }

private:
    const Kind m_kind;
    BrowserExt m_ext;
    QString m_target;
};

std::unique_ptr<Feature> makeFeature(int which, const Machine& m)
{
    switch (which) {
    case 0:
        return std::make_unique<CleanupFeature>(m);
    case 1:
        return std::make_unique<ResidueFeature>(m, true);
    case 2:
        return std::make_unique<ResidueFeature>(m, false);
    case 3:
        return std::make_unique<ForceRemoveFeature>(m, ForceRemoveKind::InstallDir);
    case 4:
        return std::make_unique<ForceRemoveFeature>(m, ForceRemoveKind::StartupShortcut);
    case 5:
        return std::make_unique<BrowserExtFeature>(m, BrowserExtFeature::ChromiumFolder);
    case 6:
        return std::make_unique<BrowserExtFeature>(m, BrowserExtFeature::FirefoxFolder);
    default:
        return std::make_unique<BrowserExtFeature>(m, BrowserExtFeature::FirefoxPackage);
    }
}

const char* const FeatureNames[]
    = { "junk cleaning", "residue: orphaned folder", "residue: cache emptied", "force remove: folder",
          "force remove: file", "extension: Chromium folder", "extension: Firefox folder", "extension: Firefox .xpi" };
constexpr int FeatureCount = int(std::size(FeatureNames));

// The links an attacker leaves before the scan. For a file target the link takes the file's place.
bool plantLinks(Attack attack, const Machine& m, const Feature& f)
{
    const QString t = f.target();
    const QString parent = QFileInfo(t).path();
    if (f.isFile()) {
        removeAll(t);
        switch (attack) {
        case Attack::FolderLinkOut:
            return link(m.victim(QStringLiteral("docs")), t);
        case Attack::FileLinkOut:
            return link(m.victim(QStringLiteral("file.txt")), t);
        case Attack::LinkUp:
            return link(parent, t);
        default:
            return link(t, t);
        }
    }
    switch (attack) {
    case Attack::FolderLinkOut:
        return link(m.victim(QStringLiteral("docs")), t + QStringLiteral("/sub/docs"));
    case Attack::FileLinkOut:
        return link(m.victim(QStringLiteral("file.txt")), t + QStringLiteral("/notes.txt"));
    case Attack::LinkUp:
        return link(parent, t + QStringLiteral("/up")) && link(m.home(), t + QStringLiteral("/deep/er/home"))
            && link(m.base(), t + QStringLiteral("/all"));
    case Attack::LinkLoop:
        return link(t + QStringLiteral("/loop"), t + QStringLiteral("/loop/self"))
            && link(t + QStringLiteral("/b"), t + QStringLiteral("/a"))
            && link(t + QStringLiteral("/a"), t + QStringLiteral("/b")) && link(t, t + QStringLiteral("/loop/target"));
    default: // a real sub-folder now, swapped later
        return write(t + QStringLiteral("/sub/cache.bin"), QByteArray(512, 'c'));
    }
}

// What an attacker does between the scan and the clean: the victim gets a look-alike of what the
// link replaces, so a clean that follows it finds the names it expects.
bool swapForLink(Attack attack, const Machine& m, const Feature& f)
{
    const QString t = f.target();
    const QString name = QFileInfo(t).fileName();
    switch (attack) {
    case Attack::EntrySwapped:
        if (f.isFile())
            return removeAll(t) && link(m.victim(QStringLiteral("docs")), t);
        return removeAll(t + QStringLiteral("/sub"))
            && link(m.victim(QStringLiteral("docs")), t + QStringLiteral("/sub"))
            && link(m.victim(QStringLiteral("file.txt")), t + QStringLiteral("/junk2.bin"));
    case Attack::TargetSwapped:
        if (f.isFile())
            return removeAll(t) && link(m.victim(QStringLiteral("file.txt")), t);
        return write(m.victim(QStringLiteral("lookalike/junk.bin")), "kept") && removeAll(t)
            && link(m.victim(QStringLiteral("lookalike")), t);
    case Attack::ParentSwapped: {
        const QString decoy = m.victim(QStringLiteral("decoy/")) + name;
        return write(f.isFile() ? decoy : decoy + QStringLiteral("/junk.bin"), "kept") && removeAll(QFileInfo(t).path())
            && link(m.victim(QStringLiteral("decoy")), QFileInfo(t).path());
    }
    default:
        return true;
    }
}

// The Unix stand-in for a junction or a mounted volume: the outside folder (or file) mounted again
// inside the target, where no link shows it for what it is.
std::unique_ptr<scratchmount::Bind> mountOutside(const Machine& m, const Feature& f)
{
    const QString at = f.isFile() ? f.target() : f.target() + QStringLiteral("/sub/mounted");
    if (!f.isFile())
        QDir().mkpath(at);
    return std::make_unique<scratchmount::Bind>(
        m.victim(f.isFile() ? QStringLiteral("file.txt") : QStringLiteral("docs")).toStdString(), at.toStdString());
}

QMap<QString, QMap<QString, qsizetype>> matrix;
std::string refusedNamespace;

} // namespace

class TestLinkAttacks : public QObject {
    Q_OBJECT
private slots:
    void nothingOutsideTheTargetIsLost_data()
    {
        QTest::addColumn<int>("feature");
        QTest::addColumn<int>("which");
        for (int f = 0; f < FeatureCount; ++f) {
            for (int a = 0; a < int(std::size(AttackNames)); ++a)
                QTest::addRow("%s × %s", FeatureNames[f], AttackNames[a]) << f << a;
        }
    }

    void nothingOutsideTheTargetIsLost()
    {
        QFETCH(int, feature);
        QFETCH(int, which);
        const Attack attack = Attack(which);
        const Machine m;
        const std::unique_ptr<Feature> f = makeFeature(feature, m);
        QVERIFY(f->plant());
        std::unique_ptr<scratchmount::Bind> mounted; // unmounted before the machine goes
        if (attack == Attack::MountedOutside) {
            if (!refusedNamespace.empty())
                QSKIP(qPrintable(
                    QStringLiteral("no private mount namespace: ") + QString::fromStdString(refusedNamespace)));
            mounted = mountOutside(m, *f);
            QVERIFY2(mounted->error().empty(), mounted->error().c_str());
        } else if (!isRace(attack) || !f->isFile()) {
            QVERIFY(plantLinks(attack, m, *f));
        }
        QVERIFY(f->scan());
        QVERIFY(swapForLink(attack, m, *f));

        const std::vector<fs::path> skipped { fsPath(f->target()) };
        const treedigest::Digest before = treedigest::of(fsPath(m.base()), skipped);
        QVERIFY(before.count("victim/docs/deep/photo.jpg"));
        QVERIFY(f->clean());
        const std::vector<std::string> lost = treedigest::lost(before, treedigest::of(fsPath(m.base()), skipped));
        matrix[QString::fromUtf8(FeatureNames[feature])][QString::fromUtf8(AttackNames[which])] = lost.size();
        for (const std::string& path : lost)
            qWarning("lost outside the target: %s", path.c_str());
        QCOMPARE(lost.size(), std::size_t(0));

        // The feature did its work: links inside went as themselves, and so did the junk.
        const bool targetIntact = attack != Attack::TargetSwapped && attack != Attack::ParentSwapped;
        if (!f->isFile() && targetIntact)
            QVERIFY(!QFileInfo::exists(f->target() + QStringLiteral("/junk.bin")));
        if (f->isFile() && attack == Attack::TargetSwapped)
            QVERIFY(!QFileInfo(f->target()).isSymLink());
    }

    // The remover rewrites the browser's own files beside the folders it deletes. A link in the
    // place of one is refused like a linked folder: rewriting it would write through to whatever
    // it names.
    void profileFilesBehindLinksAreNotRewritten_data()
    {
        QTest::addColumn<QString>("browser");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("error");
        const QString chromium = QStringLiteral("Google/Chrome/User Data/Default/");
        QTest::newRow("Chromium Preferences") << "Google Chrome" << chromium + "Preferences"
                                              << "Cannot patch ";
        QTest::newRow("Chromium Secure Preferences") << "Google Chrome" << chromium + "Secure Preferences"
                                                     << "Cannot patch ";
        QTest::newRow("Firefox extensions.json") << "Mozilla Firefox"
                                                 << "Mozilla/Firefox/Profiles/abc.default/extensions.json"
                                                 << "Cannot write ";
    }

    void profileFilesBehindLinksAreNotRewritten()
    {
        QFETCH(QString, browser);
        QFETCH(QString, file);
        QFETCH(QString, error);
        const Machine m;
        const bool firefox = browser.startsWith(QLatin1String("Mozilla"));
        const QString path = (firefox ? m.roaming() : m.local()) + QLatin1Char('/') + file;
        BrowserExt ext;
        ext.browser = browser;
        ext.id = QStringLiteral("abcdefghijklmnopabcdefghijklmnop");
        // What the link names looks exactly like the file the remover expects, so only the link stops it.
        const QByteArray text = firefox ? "{\"addons\":[{\"id\":\"" + ext.id.toUtf8() + "\"}]}"
                                        : "{\"extensions\":{\"settings\":{\"" + ext.id.toUtf8() + "\":{}}}}";
        QVERIFY(write(m.victim(QStringLiteral("profile.json")), text));
        QVERIFY(QDir().mkpath(QFileInfo(path).path() + (firefox ? QString() : QStringLiteral("/Extensions"))));
        QVERIFY(link(m.victim(QStringLiteral("profile.json")), path));

        const treedigest::Digest before = treedigest::of(fsPath(m.base()));
        const BrowserExtRemover::Result result = BrowserExtRemover::remove(ext);
        QCOMPARE(treedigest::lost(before, treedigest::of(fsPath(m.base()))), std::vector<std::string>());
        QVERIFY(!result.success);
        QCOMPARE(result.error, error + path);
    }

    void cleanupTestCase()
    {
        // The matrix as it can be quoted: files outside the target lost per feature and attack.
        QString table = QStringLiteral("\n%1").arg(QString(), -28);
        for (const char* attack : AttackNames)
            table += QStringLiteral(" | %1").arg(QString::fromUtf8(attack));
        for (const char* feature : FeatureNames) {
            table += QStringLiteral("\n%1").arg(QString::fromUtf8(feature), -28);
            for (const char* attack : AttackNames) {
                const auto row = matrix.value(QString::fromUtf8(feature));
                const QString cell = row.contains(QString::fromUtf8(attack))
                    ? QString::number(row.value(QString::fromUtf8(attack)))
                    : QStringLiteral("-");
                table += QStringLiteral(" | %1").arg(cell, int(qstrlen(attack)));
            }
        }
        qInfo().noquote() << table;
    }
};

int main(int argc, char** argv)
{
    // Before Qt starts any thread: a process with several cannot change its mount namespace.
    refusedNamespace = scratchmount::enterPrivateNamespace();
    QCoreApplication app(argc, argv);
    TestLinkAttacks test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_linkattacks.moc"
