#include "browserext/browserextpage.h"
#include "browserext/browserextrow.h"
#include "browserext/browsergroupwidget.h"
#include "extmachine.h"
#include "support/labeltext.h"
#include "support/modalscript.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

const QString ChromeUserData = QStringLiteral("Google/Chrome/User Data/Default");

struct Launches {
    QStringList programs;
    QList<QUrl> urls;
};

// A page whose fallback records what it would start.
std::unique_ptr<BrowserExtPage> makePage(Launches& launches)
{
    auto page = std::make_unique<BrowserExtPage>();
    page->setProgramStarter([&launches](const QString& program, const QStringList& arguments) {
        return launches.programs.append(program + ' ' + arguments.join(' ')), true;
    });
    page->setUrlOpener([&launches](const QUrl& url) { return launches.urls.append(url), true; });
    page->resize(900, 640);
    page->show();
    page->startScan();
    return page;
}

QList<BrowserExtRow*> rowsOf(const BrowserExtPage& page)
{
    QList<BrowserExtRow*> rows;
    for (BrowserGroupWidget* group : page.groups())
        rows += group->rows();
    return rows;
}

BrowserExtRow* rowNamed(const BrowserExtPage& page, const QString& name)
{
    for (BrowserExtRow* row : rowsOf(page))
        if (row->extension().name == name)
            return row;
    return nullptr;
}

} // namespace

class tst_BrowserExtPage : public QObject {
    Q_OBJECT

    static QString addChrome(ExtMachine& m, const QString& id, const char* name)
    {
        const QString folder = m.local(ChromeUserData + "/Extensions/" + id);
        m.write(folder + "/1.0_0/manifest.json", QByteArray("{\"name\":\"") + name + "\",\"version\":\"1.0\"}");
        return folder;
    }

private slots:
    void runningBrowserIsEndedOrTheRemovalStops_data()
    {
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<bool>("stubborn");
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<bool>("removed");
        QTest::newRow("retry, then force quit")
            << QStringList { "Yes", "重试", "强制结束并移除" } << false
            << QStringList { "移除扩展", "浏览器正在运行", "浏览器正在运行" } << true;
        QTest::newRow("a process that will not end")
            << QStringList { "Yes", "强制结束并移除", "OK" } << true
            << QStringList { "移除扩展", "浏览器正在运行", "无法终止进程" } << false;
        QTest::newRow("cancel") << QStringList { "Yes", "取消" } << false
                                << QStringList { "移除扩展", "浏览器正在运行" } << false;
        QTest::newRow("no to the question") << QStringList { "No" } << false << QStringList { "移除扩展" } << false;
    }
    void runningBrowserIsEndedOrTheRemovalStops()
    {
        NORVALE_SANDBOX_ONLY("lays out browser profiles and running browsers of its own");
        QFETCH(QStringList, answers);
        QFETCH(bool, stubborn);
        QFETCH(QStringList, titles);
        QFETCH(bool, removed);
        ExtMachine m;
        const QString folder = addChrome(m, "abcdefghijklmnopabcdefghijklmnop", "Tab <b>Saver</b>");
        m.setRunning(
            { "explorer.exe", "chrome.exe", "Chrome.exe" }, stubborn ? QStringList { "Chrome.exe" } : QStringList());
        Launches launches;
        auto page = makePage(launches);
        QTRY_COMPARE(rowsOf(*page).size(), 1);

        ModalScript boxes(ModalScript::pressing(answers));
        rowsOf(*page).constFirst()->findChild<QPushButton*>("BrowserExtRemoveButton")->click();
        QCOMPARE(boxes.seen, titles);
        // The name is shown as text, never as markup.
        QVERIFY(boxes.texts[0].startsWith("确定要移除 <b>Tab &lt;b&gt;Saver&lt;/b&gt;</b>？"));
        if (titles.size() > 1)
            QCOMPARE(boxes.texts[1], QStringLiteral("<b>Google Chrome</b> 有后台进程仍在运行。"));
        if (stubborn)
            QCOMPARE(boxes.texts[2],
                QStringLiteral("无法完全终止 Google Chrome，请手动在任务管理器中结束所有 chrome.exe 进程后重试。"));
        if (removed) {
            QTRY_COMPARE(labelText(*page, "BarStatLabel"), QStringLiteral("✓ 已移除「Tab <b>Saver</b>」"));
            QVERIFY(!QFileInfo::exists(folder));
            QTRY_COMPARE(rowsOf(*page).size(), 0); // scanned again
        } else {
            QTest::qWait(100);
            QVERIFY(QFileInfo::exists(folder));
            QCOMPARE(labelText(*page, "BarStatLabel"), QString());
        }
        QVERIFY(launches.programs.isEmpty() && launches.urls.isEmpty());
    }

    void failedRemovalCopiesTheIdAndOpensTheBrowsersPage_data()
    {
        QTest::addColumn<bool>("installed");
        QTest::addColumn<QString>("program"); // "@" stands for the system drive
        QTest::addColumn<QString>("url");
        QTest::newRow("browser installed")
            << true << "@Program Files/Google/Chrome/Application/chrome.exe chrome://extensions/"
            << "";
        QTest::newRow("no browser program") << false << ""
                                            << "https://support.google.com/chrome_webstore/answer/2664769";
    }
    void failedRemovalCopiesTheIdAndOpensTheBrowsersPage()
    {
        NORVALE_SANDBOX_ONLY("lays out browser profiles and running browsers of its own");
        QFETCH(bool, installed);
        QFETCH(QString, program);
        QFETCH(QString, url);
        ExtMachine m;
        const QString id = "ponmlkjihgfedcbaponmlkjihgfedcba";
        m.undeletable.insert(addChrome(m, id, "Stuck"));
        if (installed)
            QVERIFY(m.write(m.drive("C:/Program Files/Google/Chrome/Application/chrome.exe"), "MZ"));
        QApplication::clipboard()->clear();
        Launches launches;
        auto page = makePage(launches);
        QTRY_COMPARE(rowsOf(*page).size(), 1);

        ModalScript boxes(ModalScript::pressing({ "Yes", "OK" }));
        rowsOf(*page).constFirst()->findChild<QPushButton*>("BrowserExtRemoveButton")->click();
        QTRY_COMPARE(boxes.seen, (QStringList { "移除扩展", "自动移除失败" }));
        QCOMPARE(QApplication::clipboard()->text(), id);
        QCOMPARE(launches.programs,
            program.isEmpty() ? QStringList() : QStringList { program.replace("@", m.drive("C:/")) });
        QCOMPARE(launches.urls, url.isEmpty() ? QList<QUrl>() : QList<QUrl> { QUrl(url) });
        QCOMPARE(boxes.texts[1], QStringLiteral("无法自动移除 <b>Stuck</b>"));
        QVERIFY(boxes.informatives[1].contains("已打开 Google Chrome 扩展管理页面。"));
        QVERIFY(boxes.informatives[1].contains(">" + id + "</span>"));
    }

    void batchReportsExactlyTheFailedExtensions_data()
    {
        QTest::addColumn<QStringList>("stuck");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("informative");
        QTest::newRow("all removed") << QStringList() << "移除完成"
                                     << "成功移除 <b>3</b> 个扩展。"
                                     << "列表将自动刷新。";
        QTest::newRow("two failed") << QStringList { "Beta & Co", "Gamma" } << "部分移除失败"
                                    << "成功 <b>1</b> 个，失败 <b>2</b> 个。"
                                    << "失败项（请手动前往浏览器移除）：<br>Beta &amp; Co<br>Gamma";
    }
    void batchReportsExactlyTheFailedExtensions()
    {
        NORVALE_SANDBOX_ONLY("lays out browser profiles and running browsers of its own");
        QFETCH(QStringList, stuck);
        QFETCH(QString, title);
        QFETCH(QString, text);
        QFETCH(QString, informative);
        ExtMachine m;
        const QStringList names { "Alpha", "Beta & Co", "Gamma", "Delta" };
        for (int i = 0; i < names.size(); ++i) {
            const QString folder = addChrome(m, QString(32, QChar('a' + i)), names[i].toUtf8().constData());
            if (stuck.contains(names[i]))
                m.undeletable.insert(folder);
        }
        m.setRunning({ "msedge.exe" }); // another browser: no question about it
        Launches launches;
        auto page = makePage(launches);
        QTRY_COMPARE(rowsOf(*page).size(), 4);
        for (const char* name : { "Alpha", "Beta & Co", "Gamma" })
            rowNamed(*page, name)->setSelected(true);
        auto* removeSelected = page->findChild<QPushButton*>("BrowserExtRemoveSelected");
        QCOMPARE(removeSelected->text(), QStringLiteral("🗑  移除所选 (3)"));

        ModalScript boxes(ModalScript::pressing({ "Yes", "OK" }));
        removeSelected->click();
        QTRY_COMPARE(boxes.seen, (QStringList { "批量移除", title }));
        QCOMPARE(boxes.texts[0], QStringLiteral("确定要移除选中的 <b>3</b> 个扩展？"));
        QCOMPARE(boxes.texts[1], text);
        // One failed name per line, in the order the scan listed them (the file system's).
        auto lines = [](const QString& html) {
            QStringList parts = html.split(QStringLiteral("<br>"));
            std::sort(parts.begin(), parts.end());
            return parts;
        };
        QCOMPARE(lines(boxes.informatives[1]), lines(informative));
        QTRY_COMPARE(rowsOf(*page).size(), 1 + stuck.size()); // scanned again
        QVERIFY(rowNamed(*page, "Delta"));
    }

    void searchHidesRowsAndGroupsAndCountsWhatIsShown()
    {
        NORVALE_SANDBOX_ONLY("lays out browser profiles and running browsers of its own");
        ExtMachine m;
        addChrome(m, QString(32, 'a'), "Ad Shield");
        addChrome(m, QString(32, 'b'), "Notes");
        m.write(m.roaming("Mozilla/Firefox/Profiles/p/extensions.json"),
            "{\"addons\":[{\"id\":\"grab@x\",\"type\":\"extension\",\"active\":false,"
            "\"defaultLocale\":{\"name\":\"Grabber\",\"description\":\"Saves SHIELD pages\"}}]}");
        Launches launches;
        auto page = makePage(launches);
        QTRY_COMPARE(rowsOf(*page).size(), 3);
        QCOMPARE(page->groups().size(), 2);
        QCOMPARE(labelText(*page, "PageSubLabel"), QStringLiteral("共 3 个扩展"));
        QVERIFY(rowNamed(*page, "Grabber")->findChild<QLabel*>("BrowserExtDisabledBadge"));
        QVERIFY(!rowNamed(*page, "Notes")->findChild<QLabel*>("BrowserExtDisabledBadge"));

        // A ticked row that the search hides is not part of a batch.
        rowNamed(*page, "Notes")->setSelected(true);
        page->findChild<QLineEdit*>()->setText("shield"); // name of one, description of another
        QCOMPARE(labelText(*page, "PageSubLabel"), QStringLiteral("显示 2 / 3 个扩展"));
        QVERIFY(!rowNamed(*page, "Notes")->isVisibleTo(page.get()));
        QCOMPARE(
            page->findChild<QPushButton*>("BrowserExtRemoveSelected")->text(), QStringLiteral("🗑  移除所选"));
        page->findChild<QLineEdit*>()->setText("grab");
        QVERIFY(!page->groups()[0]->isVisibleTo(page.get()));
        QCOMPARE(page->groups()[1]->findChild<QLabel*>("BrowserGroupCount")->text(), QStringLiteral("1 个扩展"));

        BrowserGroupWidget* firefox = page->groups()[1];
        QCOMPARE(firefox->findChild<QLabel*>("BrowserGroupArrow")->text(), QStringLiteral("▼"));
        QTest::mouseClick(firefox->findChild<QWidget*>("groupHeader"), Qt::LeftButton);
        QCOMPARE(firefox->findChild<QLabel*>("BrowserGroupArrow")->text(), QStringLiteral("▶"));
        QVERIFY(!rowNamed(*page, "Grabber")->isVisibleTo(page.get()));
    }

    void avatarShowsTheNamesFirstCharacter_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("initial");
        QTest::newRow("letter") << QString("quick Notes") << QString("Q");
        QTest::newRow("leading space") << QString("  ad") << QString("A");
        QTest::newRow("emoji outside the basic plane") << QString("🔥 Fire") << QString("🔥");
    }
    void avatarShowsTheNamesFirstCharacter()
    {
        QFETCH(QString, name);
        QFETCH(QString, initial);
        const BrowserExtRow row({ "Google Chrome", QString(32, 'a'), name, {}, "1", {}, true });
        QCOMPARE(row.findChild<QLabel*>("BrowserExtAvatar")->text(), initial);
    }
};

QTEST_MAIN(tst_BrowserExtPage)
#include "tst_browserextpage.moc"
