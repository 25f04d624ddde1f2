#include "fakecatalogue.h"

#include "recordedrunner.h"
#include "winapps/winapprow.h"
#include "winapps/winappspage.h"

#include "support/modalscript.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

// Every removal step fails and the package stays registered.
std::shared_ptr<RecordedRunner> failingRunner()
{
    auto runner = std::make_shared<RecordedRunner>();
    const ProcessOutcome denied = outcome(1, {}, "0x80073CFA <denied>");
    runner->outcomes = { { "user", denied }, { "allUsers", denied }, { "provisioned", denied }, { "winget", denied },
        { "verify", outcome(0, "still.here") } };
    return runner;
}

WinApp app(const QString& displayName, const QString& publisher, const QString& name = QString())
{
    WinApp a;
    a.displayName = displayName;
    a.publisher = publisher;
    a.name = name.isEmpty() ? QStringLiteral("Contoso.") + displayName : name;
    a.fullName = a.name + QStringLiteral("_1.0.0.0_x64__abc");
    return a;
}

} // namespace

class tst_WinAppsPage : public QObject {
    Q_OBJECT

    QList<WinAppRow*> rows(WinAppsPage& page) { return page.findChildren<WinAppRow*>(); }
    QString count(WinAppsPage& page) { return page.findChild<QLabel*>("WinAppsCount")->text(); }
    static void click(QWidget* row) { QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(200, 10)); }
    static void show(WinAppsPage& page) { page.resize(900, 600), page.show(); }

private slots:
    void refreshShowsTheBannerUntilTheScanEnds()
    {
        FakeCatalogue catalogue;
        for (int i = 0; i < 6; ++i) {
            platform::PackageRecord p;
            p.name = L"Contoso.App" + std::to_wstring(i);
            p.fullName = p.name + L"_1.0.0.0_x64__abc";
            catalogue.packages_.push_back(p);
        }
        {
            // Closed while its scan still runs: the page waits for the thread instead of crashing.
            WinAppsPage closing;
            closing.refresh();
        }

        WinAppsPage page;
        page.refresh();
        auto* banner = page.findChild<QWidget*>("WinAppsBanner");
        QVERIFY(banner->isVisibleTo(&page));
        QCOMPARE(count(page), QStringLiteral("正在扫描..."));
        QVERIFY(!page.findChild<QPushButton*>("WinAppsRefresh")->isEnabled());
        QTRY_VERIFY(!banner->isVisibleTo(&page));
        QCOMPARE(page.findChild<QLabel*>("WinAppsBannerText")->text(),
            QStringLiteral("正在扫描 Windows 应用... 已找到 5 个"));
        QCOMPARE(count(page), QStringLiteral("共 6 个应用"));
        QCOMPARE(rows(page).size(), 6);
        QVERIFY(page.findChild<QPushButton*>("WinAppsRefresh")->isEnabled());
    }

    void searchAndCounts()
    {
        WinAppsPage page;
        page.onScanDone({ app("Calculator", "Microsoft Corporation"), app("MicroPad", "Fabrikam"),
            app("Spotify", "Spotify AB"), app("Terminal", "MICROSOFT CORPORATION") });
        QCOMPARE(count(page), QStringLiteral("共 4 个应用"));

        auto* search = page.findChild<QLineEdit*>("WinAppsSearch");
        // Name or publisher, any letter case, the search text trimmed.
        QTest::keyClicks(search, QStringLiteral("  micro "));
        QCOMPARE(rows(page).size(), 3);
        QCOMPARE(count(page), QStringLiteral("显示 3 / 4 个应用"));
        search->setText(QStringLiteral("spotify ab"));
        QCOMPARE(rows(page).size(), 1);
        search->setText(QStringLiteral("nothing like it"));
        QCOMPARE(count(page), QStringLiteral("显示 0 / 4 个应用"));
        search->clear();
        QCOMPARE(rows(page).size(), 4);
        QCOMPARE(count(page), QStringLiteral("共 4 个应用"));
    }

    void selectionDrivesTheRemoveButton()
    {
        WinAppsPage page;
        show(page);
        page.onScanDone({ app("A", "P"), app("B", "P"), app("C", "P") });
        auto* remove = page.findChild<QPushButton*>("WinAppsRemove");
        QCOMPARE(remove->text(), QStringLiteral("🗑  移除所选"));
        QVERIFY(!remove->isEnabled());

        const auto list = rows(page);
        click(list[0]);
        click(list[2]);
        QCOMPARE(remove->text(), QStringLiteral("🗑  移除所选 (2)"));
        QVERIFY(remove->isEnabled());
        click(list[0]);
        QCOMPARE(remove->text(), QStringLiteral("🗑  移除所选 (1)"));
    }

    void everyRemovalFailedShowsTheCriticalBox()
    {
        WinAppsPage page;
        show(page);
        auto runner = failingRunner();
        page.setProcessRunner(runner);
        page.onScanDone({ app("Notes", "P"), app("Paint <b>", "P"), app("Zune", "P") });
        const auto list = rows(page);
        click(list[0]);
        click(list[1]);

        bool defaultNo = false, critical = false;
        ModalScript boxes({ [&](QWidget* modal) {
                               auto* box = static_cast<QMessageBox*>(modal);
                               defaultNo = box->defaultButton() == box->button(QMessageBox::No);
                               box->button(QMessageBox::Yes)->click();
                           },
            [&](QWidget* modal) {
                critical = static_cast<QMessageBox*>(modal)->icon() == QMessageBox::Critical;
                static_cast<QMessageBox*>(modal)->accept();
            } });
        page.findChild<QPushButton*>("WinAppsRemove")->click();
        QTRY_COMPARE(boxes.seen.size(), 2);
        QCOMPARE(boxes.texts, QStringList({ "确定移除选中的 2 个应用？\n此操作不可撤销。", "所有应用移除失败。" }));
        QVERIFY(defaultNo && critical);
        QCOMPARE(boxes.seen.at(1), QStringLiteral("移除失败"));
        // Both apps, in row order, their names and the tool's text escaped for rich text.
        QVERIFY2(boxes.informatives.at(1).startsWith(
                     QStringLiteral("失败详情：<br>• Notes：0x80073CFA &lt;denied&gt;"
                                    "<br>• Paint &lt;b&gt;：0x80073CFA &lt;denied&gt;<br><br>")),
            qPrintable(boxes.informatives.at(1)));
        QTRY_VERIFY_WITH_TIMEOUT(page.findChild<QWidget*>("WinAppsOverlay")->isHidden(), 10000);
        QTRY_VERIFY(page.findChild<QPushButton*>("WinAppsRefresh")->isEnabled());
        // Per app: two removals, the provisioned copy and the check; no winget identifier.
        QCOMPARE(int(runner->calls().size()), 8);
    }

    void edgeIsNeverRemovedSingly()
    {
        WinAppsPage page;
        show(page);
        auto runner = failingRunner();
        page.setProcessRunner(runner);
        page.onScanDone({ app("Microsoft Edge", "Microsoft", "microsoft.microsoftedge.Stable") });

        ModalScript boxes(ModalScript::pressing({ "OK" }));
        rows(page).first()->findChild<QPushButton*>("WinAppRowRemove")->click();
        QCOMPARE(boxes.seen, QStringList { QStringLiteral("无法卸载 Microsoft Edge") });
        QTest::qWait(50);
        QCOMPARE(int(runner->calls().size()), 0);
        QVERIFY(page.findChild<QWidget*>("WinAppsOverlay")->isHidden());
    }

    void avatarColours_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("colour");
        const auto row = [](const char* tag, const QString& name, const char* colour) {
            QTest::newRow(tag) << name << QString::fromLatin1(colour);
        };
        row("empty name: first colour", "", "#0ea5e9");
        row("A is 0x41: index 1", "Alarms", "#8b5cf6");
        row("H is 0x48: wraps to 0", "Help", "#0ea5e9");
        row("a Chinese first character", QStringLiteral("应用商店"), "#ef4444");
    }

    void avatarColours()
    {
        QFETCH(QString, name);
        QTEST(WinAppRow::avatarColor(name).name(), "colour");
    }
};

QTEST_MAIN(tst_WinAppsPage)
#include "tst_winappspage.moc"
