#include <uninstall/uninstallmanager.h>
#include <uninstall/uninstallpage.h>
#include <uninstall/uninstallrowwidget.h>

#include <platform/platform.h>
#include <platform/registry.h>
#include <support/currentmachine.h>
#include <support/modalscript.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <tuple>

namespace {

constexpr qint64 MiB = 1024 * 1024;

InstalledApp app(const QString& name, const QString& publisher, qint64 size, const QString& date,
    const QString& status = QStringLiteral("ok"), const QString& uninstall = QStringLiteral("u.exe"))
{
    InstalledApp a;
    std::tie(a.name, a.publisher, a.estimatedSize, a.installDate, a.status, a.uninstallString)
        = std::tie(name, publisher, size, date, status, uninstall);
    return a;
}

QStringList names(const QList<InstalledApp>& apps)
{
    QStringList list;
    for (const InstalledApp& a : apps)
        list << a.name;
    return list;
}

QStringList visibleNames(const UninstallPage& page)
{
    QStringList list;
    for (const UninstallRowWidget* row : page.rows())
        if (row->isVisibleTo(&page))
            list << row->app().name;
    return list;
}

} // namespace

class tst_UninstallPage : public QObject {
    Q_OBJECT
    std::unique_ptr<CurrentMachine> m_machine;

    static void showPage(UninstallPage& page, const QList<InstalledApp>& apps)
    {
        page.resize(900, 600);
        page.showApps(apps);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
    }
    static void clickRow(UninstallPage& page, int i)
    {
        QTest::mouseClick(page.rows().at(i), Qt::LeftButton, {}, QPoint(20, 20));
    }

private slots:
    void init()
    {
        m_machine.reset();
        m_machine = std::make_unique<CurrentMachine>();
    }
    void cleanupTestCase() { m_machine.reset(); }

    void rowLooks_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("colour");
        QTest::newRow("100 MiB is quiet") << 100 * MiB << "#94a3b8";
        QTest::newRow("one byte more is amber") << 100 * MiB + 1 << "#f59e0b";
        QTest::newRow("500 MiB is amber") << 500 * MiB << "#f59e0b";
        QTest::newRow("one byte more is red") << 500 * MiB + 1 << "#ef4444";
    }
    void rowLooks()
    {
        QFETCH(qint64, bytes);
        QTEST(UninstallRowWidget::sizeColor(bytes), "colour");
    }

    void filterAndSearch_data()
    {
        QTest::addColumn<bool>("unusedChip");
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("all") << false << "" << QStringList { "GIMP", "Steam", "Inkscape", "Gitter" };
        QTest::newRow("unused only") << true << "" << QStringList { "GIMP", "Gitter" };
        QTest::newRow("unused narrowed further") << true << "MP" << QStringList { "GIMP" };
        QTest::newRow("search matches the publisher, any case") << false << "VALVE" << QStringList { "Steam" };
        QTest::newRow("nothing matches") << true << "steam" << QStringList {};
    }
    void filterAndSearch()
    {
        QFETCH(bool, unusedChip);
        QFETCH(QString, search);
        UninstallPage page;
        page.showApps({ app("GIMP", "The GIMP Team", 40, "", "old"), app("Steam", "Valve", 30, ""),
            app("Inkscape", "Inkscape Project", 20, ""), app("Gitter", "Gitter Ltd", 10, "", "old") });
        auto chips = page.findChildren<QPushButton*>("ChipButton");
        QCOMPARE(chips.size(), 2);
        QTest::mouseClick(chips.at(unusedChip ? 1 : 0), Qt::LeftButton);
        QTest::keyClicks(page.findChild<QLineEdit*>("SearchBox"), search);
        QTEST(visibleNames(page), "shown");
        QCOMPARE(chips.at(1)->property("active").toString(), QString(unusedChip ? "true" : "false"));
        QCOMPARE(chips.at(0)->property("active").toString(), QString(unusedChip ? "false" : "true"));
        QCOMPARE(page.findChild<QLabel*>("UnusedCount")->text(), QString("2"));
        QCOMPARE(page.findChild<QLabel*>("AppsCount")->text(), QString("4"));
    }

    void sorting_data()
    {
        QTest::addColumn<QList<int>>("choices"); // sort box indices, in the order chosen
        QTest::addColumn<QStringList>("order");
        const auto row = [](const char* what, const QList<int>& choices, const QStringList& order) {
            QTest::newRow(what) << choices << order;
        };
        row("by size, ties keep the list's order", { 0 }, { "C", "beta", "Alpha", "Beta" });
        row("by date, newest first, no date last", { 1 }, { "beta", "Beta", "C", "Alpha" });
        row("by name, capitals first", { 2 }, { "Alpha", "Beta", "C", "beta" });
        row("by size after by name keeps name order among ties", { 2, 0 }, { "C", "Alpha", "Beta", "beta" });
    }
    void sorting()
    {
        QFETCH(QList<int>, choices);
        UninstallPage page;
        page.showApps({ app("beta", "", 10, "2024-01-01"), app("Alpha", "", 10, ""), app("C", "", 20, "2023-05-05"),
            app("Beta", "", 10, "2024-01-01") });
        auto* sortBox = page.findChild<QComboBox*>("SortBox");
        for (int index : choices)
            sortBox->setCurrentIndex(index); // the first list is already by size
        QTEST(names(page.listedApps()), "order");
        QCOMPARE(visibleNames(page), names(page.listedApps()));
    }

    void bottomBarFollowsTheSelection()
    {
        UninstallPage page;
        showPage(page, { app("A", "", 2 * MiB, ""), app("B", "", 3 * MiB, ""), app("C", "", 0, "") });
        auto* stat = page.findChild<QLabel*>("BarStatLabel");
        auto* uninstallSelected = page.findChild<QPushButton*>("UninstallSelectedButton");
        QCOMPARE(stat->text(), QString("<b>3</b> programs"));
        QVERIFY(!uninstallSelected->isEnabled());

        clickRow(page, 0);
        clickRow(page, 1);
        QCOMPARE(stat->text(), QString("Selected <b>2</b>  ·  Free up <b>5 MB</b>"));
        QVERIFY(uninstallSelected->isEnabled());
        // A hidden row keeps its tick but leaves the count.
        QTest::keyClicks(page.findChild<QLineEdit*>("SearchBox"), "B");
        QCOMPARE(stat->text(), QString("Selected <b>1</b>  ·  Free up <b>3 MB</b>"));
        page.findChild<QLineEdit*>("SearchBox")->clear();
        clickRow(page, 0);
        clickRow(page, 1);
        QCOMPARE(stat->text(), QString("<b>3</b> programs"));
        QVERIFY(!uninstallSelected->isEnabled());
    }

    // Which question a row's Remove asks first, and where "Force Remove…" leads.
    void removeAsksTheRightQuestion_data()
    {
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QStringList>("modals");
        const auto row = [](const char* what, const char* status, const char* command, const QStringList& modals) {
            QTest::newRow(what) << status << command << modals;
        };
        const QStringList force { "No Uninstaller Found", "Force Remove" };
        row("uninstaller: confirmation, declined", "ok", "u.exe", { "Confirm Uninstall" });
        row("no uninstaller: straight to force removal", "nouninstaller", "", force);
        row("empty command despite its status", "old", "", force);
    }
    void removeAsksTheRightQuestion()
    {
        QFETCH(QString, status);
        QFETCH(QString, command);
        UninstallPage page;
        showPage(page, { app("Tool", "", 1, "", status, command) });
        ModalScript script(
            ModalScript::pressing(status == "ok" ? QStringList { "No" } : QStringList { "Force Remove…", "Cancel" }));
        UninstallRowWidget* row = page.rows().at(0);
        QTest::mouseClick(row, Qt::LeftButton, {}, row->removeButtonRect().center());
        QVERIFY(!row->isSelected());
        QTEST(script.seen, "modals");
        QVERIFY(page.manager()->history().isEmpty());
    }

    void failedUninstallOffersForceRemoval_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("batch");
        QTest::addColumn<QStringList>("modals");
        const QStringList failed { "Uninstall Failed" };
        QTest::newRow("program still listed") << "Steam" << false << failed + QStringList { "Force Remove" };
        QTest::newRow("program gone from the list") << "Ghost" << false << failed + QStringList { "Not Found" };
        // The sandbox runs no "u.exe", so the batch's only uninstall fails.
        QTest::newRow("failure inside a batch")
            << "Steam" << true << QStringList { "Batch Uninstall", "Uninstall Failed", "Force Remove" };
    }
    void failedUninstallOffersForceRemoval()
    {
        QFETCH(QString, name);
        QFETCH(bool, batch);
        UninstallPage page;
        page.resize(900, 600);
        page.showApps({ app("Steam", "Valve", 1, "") });
        QStringList presses { "Force Remove…", name == "Ghost" ? "OK" : "Cancel" };
        if (batch) {
            // The batch's closing refresh may land while the failure is on screen; the program
            // is still installed, so it is still found.
            const std::wstring key = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Steam";
            m_machine->platform().registry().setString(platform::Hive::LocalMachine, key, L"DisplayName", L"Steam");
            m_machine->platform().registry().setString(platform::Hive::LocalMachine, key, L"UninstallString", L"u.exe");
            presses.prepend("Yes");
            page.show();
            QVERIFY(QTest::qWaitForWindowExposed(&page));
            clickRow(page, 0);
        }
        ModalScript script(ModalScript::pressing(presses));
        if (batch) {
            QSignalSpy batchDone(page.manager(), &UninstallManager::batchFinished);
            page.findChild<QPushButton*>("UninstallSelectedButton")->click();
            QVERIFY(arrived(batchDone, 5000));
            QTRY_COMPARE(script.seen.size(), 3);
        } else {
            page.onUninstallFinished(name, false);
        }
        QTEST(script.seen, "modals");
        QCOMPARE(page.findChild<QLabel*>("UninstallStatusLabel")->text(),
            QString("✗ Failed to uninstall: <b>%1</b>").arg(name));
    }

    void inventoryShowsTheOverlayThenTheCounters()
    {
        NORVALE_SANDBOX_ONLY("needs an uninstall list that holds only the programs it lays out");
        const std::wstring key = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
        auto& reg = m_machine->platform().registry();
        reg.setString(platform::Hive::LocalMachine, key + L"A", L"DisplayName", L"Alpha <b>Tool</b>");
        reg.setString(platform::Hive::LocalMachine, key + L"A", L"UninstallString", L"a.exe");
        reg.setString(platform::Hive::LocalMachine, key + L"A", L"InstallDate", L"20100101");
        reg.setString(platform::Hive::LocalMachine, key + L"B", L"DisplayName", L"Beta");
        UninstallPage page;
        auto* empty = page.findChild<QLabel*>("UninstallEmptyLabel");
        QCOMPARE(empty->text(), QString("Click Refresh to scan installed programs."));
        QSignalSpy done(page.manager(), &UninstallManager::refreshFinished);
        page.show();
        page.startFirstLoad();
        auto* refresh = page.findChildren<QPushButton*>("BtnGhost").at(0);
        if (done.isEmpty()) {
            QVERIFY(page.findChild<QWidget*>("UninstallOverlay")->isVisible());
            QCOMPARE(refresh->text(), QString("Scanning..."));
        }
        QTRY_COMPARE(page.rows().size(), 2);
        QVERIFY(!page.findChild<QWidget*>("UninstallOverlay")->isVisible());
        QVERIFY(!empty->isVisible());
        QCOMPARE(refresh->text(), QString("↺ Refresh"));
        QCOMPARE(page.findChild<QLabel*>("AppsCount")->text(), QString("2"));
        QCOMPARE(page.findChild<QLabel*>("UnusedCount")->text(), QString("1"));
        // A name is shown as text, never as markup, in the status line.
        page.onUninstallStarted("Alpha <b>Tool</b>");
        QVERIFY(page.findChild<QLabel*>("UninstallStatusLabel")->text().contains("Alpha &lt;b&gt;Tool&lt;/b&gt;"));
    }
};

QTEST_MAIN(tst_UninstallPage)
#include "tst_uninstallpage.moc"
