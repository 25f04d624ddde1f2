// Drives the real main window from outside the program: starts it exactly as the program does,
// visits each page, waits for the page's own work, and saves the window as a PNG.
// Usage: norvale-screenshots <output-folder>

#include "app/startup.h"
#include "forceremove/forceremovedialog.h"
#include "forceremove/forceremovescanner.h"
#include "shell/mainwindow.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QMenu>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

#include "residue/residuedialog.h"
#include "shell/titlebar.h"
#include "uninstall/uninstallmanager.h"
#include "uninstall/uninstallpage.h"

namespace {

void wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

int envInt(const char* name, int fallback)
{
    bool ok = false;
    const int v = qEnvironmentVariableIntValue(name, &ok);
    return ok ? v : fallback;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication app(argc, argv);
    const QString outDir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("screenshots");
    QDir().mkpath(outDir);

    Startup::prepareApplication();

    MainWindow window(nullptr);
    window.show();

    // Pages do their first work on their own schedule (metrics every 1.5 s, the cleanup scan
    // 200 ms after start): give each time to settle before taking its picture.
    const struct {
        int index;
        const char* name;
        int settleMs;
    } pages[] = {
        { MainWindow::Dashboard, "dashboard", envInt("NORVALE_SHOT_DASHBOARD_MS", 3500) },
        { MainWindow::Cleanup, "cleanup", envInt("NORVALE_SHOT_CLEANUP_MS", 5000) },
        { MainWindow::Uninstall, "uninstall", envInt("NORVALE_SHOT_UNINSTALL_MS", 3000) },
        { MainWindow::WinApps, "winapps", envInt("NORVALE_SHOT_WINAPPS_MS", 1500) },
        { MainWindow::BrowserExtensions, "browserext", envInt("NORVALE_SHOT_BROWSEREXT_MS", 1500) },
    };
    int failures = 0;
    for (const auto& page : pages) {
        window.navigateTo(page.index);
        wait(page.settleMs);
        const QString file = QStringLiteral("%1/%2-%3.png").arg(outDir).arg(page.index).arg(QLatin1String(page.name));
        if (!window.grab().save(file)) {
            qWarning("could not save %s", qPrintable(file));
            ++failures;
        }
    }

    // The residue dialog over the programs page, scanning for the demo machine's uninstall history.
    if (auto* page = window.findChild<UninstallPage*>()) {
        window.navigateTo(MainWindow::Uninstall);
        ResidueDialog dialog(page->manager()->history(), &window);
        dialog.show();
        wait(envInt("NORVALE_SHOT_RESIDUE_MS", 2500));
        if (!dialog.grab().save(QStringLiteral("%1/2-uninstall-residue.png").arg(outDir)))
            ++failures;
        dialog.close();
    }

    // The cleanup page in full: its eleven rows and bottom bar are taller than the window.
    const QSize normalSize = window.size();
    window.navigateTo(MainWindow::Cleanup);
    window.resize(normalSize.width(), envInt("NORVALE_SHOT_TALL_HEIGHT", 1280));
    wait(400);
    if (!window.grab().save(QStringLiteral("%1/1-cleanup-full.png").arg(outDir)))
        ++failures;
    window.resize(normalSize);

    // The force-remove dialog's list for the demo program that has no uninstaller.
    {
        InstalledApp app;
        app.name = QStringLiteral("Driftwood Sync");
        app.publisher = QStringLiteral("Driftwood Labs");
        app.installLocation = QStringLiteral("C:\\Program Files\\Driftwood Sync");
        auto* dialog = new ForceRemoveDialog(app, &window);
        QEventLoop scanned;
        QObject::connect(dialog->scanner(), &ForceRemoveScanner::scanFinished, &scanned, &QEventLoop::quit);
        QTimer::singleShot(envInt("NORVALE_SHOT_FORCEREMOVE_MS", 15000), &scanned, &QEventLoop::quit);
        dialog->show();
        scanned.exec();
        wait(300);
        if (!dialog->grab().save(QStringLiteral("%1/2-uninstall-forceremove.png").arg(outDir)))
            ++failures;
        // The end of the list, where the high-risk rows are.
        if (auto* list = dialog->findChild<QScrollArea*>(QStringLiteral("FRList"))) {
            list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum());
            wait(100);
            if (!dialog->grab().save(QStringLiteral("%1/2-uninstall-forceremove-end.png").arg(outDir)))
                ++failures;
        }
        dialog->close();
    }

    // The application menu, opened over the dashboard.
    window.navigateTo(MainWindow::Dashboard);
    QTimer::singleShot(600, &app, [&] {
        if (QMenu* menu = window.titleBar()->menu()) {
            // The menu may hang past the window's edge, as it does on screen: the picture takes in
            // both, so a long entry is seen whole.
            const QPoint at = window.mapFromGlobal(menu->pos());
            const QRect canvas = window.rect().united(QRect(at, menu->size()));
            QPixmap shot(canvas.size());
            shot.fill(QColor(0x33, 0x41, 0x55));
            QPainter painter(&shot);
            painter.drawPixmap(-canvas.topLeft(), window.grab());
            painter.drawPixmap(at - canvas.topLeft(), menu->grab());
            painter.end();
            shot.save(QStringLiteral("%1/5-menu.png").arg(outDir));
            menu->close();
        }
    });
    window.titleBar()->showMenu();

    return failures == 0 ? 0 : 1;
}
