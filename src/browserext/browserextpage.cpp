#include "browserextpage.h"

#include "browserextpaths.h"
#include "browserextrow.h"
#include "browserextscanner.h"
#include "browsergroupwidget.h"

#include "platform/environment.h"
#include "platform/platform.h"

#include <QApplication>
#include <QClipboard>
#include <QDebug>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QProgressBar>
#include <QPromise>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QtConcurrent>

namespace {

const char* const ScrollStyle
    = "QScrollArea { background:#f0f7ff; border:none; }"
      "QScrollBar:vertical { background:#f1f5f9; width:6px; margin:0; border:none; }"
      "QScrollBar::handle:vertical { background:#cbd5e1; min-height:30px; border-radius:3px; }"
      "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height:0; }"
      "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background:none; }";

struct ExtensionPage {
    QString url;
    QStringList executables; // Windows paths, tried in order
    QString helpUrl; // opened when no executable is found
};

// Where each browser keeps its extension list, and where its program usually is.
ExtensionPage extensionPageFor(const QString& browser, const QString& localAppData)
{
    if (browser == browserext::Chrome)
        return { QStringLiteral("chrome://extensions/"),
            { localAppData + QStringLiteral("/Google/Chrome/Application/chrome.exe"),
                QStringLiteral("C:/Program Files/Google/Chrome/Application/chrome.exe"),
                QStringLiteral("C:/Program Files (x86)/Google/Chrome/Application/chrome.exe") },
            QStringLiteral("https://support.google.com/chrome_webstore/answer/2664769") };
    if (browser == browserext::Edge)
        return { QStringLiteral("edge://extensions/"),
            { QStringLiteral("C:/Program Files (x86)/Microsoft/Edge/Application/msedge.exe"),
                QStringLiteral("C:/Program Files/Microsoft/Edge/Application/msedge.exe") },
            QStringLiteral(
                "https://support.microsoft.com/microsoft-edge/"
                "add-turn-off-or-remove-extensions-in-microsoft-edge-9c0ec68c-2fbc-2f2c-9ff0-bdc76f46b026") };
    return { QStringLiteral("about:addons"),
        { QStringLiteral("C:/Program Files/Mozilla Firefox/firefox.exe"),
            QStringLiteral("C:/Program Files (x86)/Mozilla Firefox/firefox.exe") },
        QStringLiteral("https://support.mozilla.org/kb/disable-or-remove-add-ons") };
}

} // namespace

BrowserExtPage::BrowserExtPage(QWidget* parent)
    : QWidget(parent)
    , m_singleWatcher(new QFutureWatcher<BrowserExtRemover::Result>(this))
    , m_batchWatcher(new QFutureWatcher<QList<BrowserExtRemover::Result>>(this))
{
    qRegisterMetaType<BrowserExtRemover::Result>();
    // The sandbox stands for another machine: nothing real is ever started from it.
    const bool sandbox = platform::current().isSandbox();
    m_startProgram = [sandbox](const QString& program, const QStringList& arguments) {
        if (sandbox) {
            qDebug().noquote() << "[BrowserExtPage] Sandbox, not starting:" << program
                               << arguments.join(QLatin1Char(' '));
            return false;
        }
        return QProcess::startDetached(program, arguments);
    };
    m_openUrl = [sandbox](const QUrl& url) {
        if (sandbox) {
            qDebug().noquote() << "[BrowserExtPage] Sandbox, not opening:" << url.toString();
            return false;
        }
        return QDesktopServices::openUrl(url);
    };

    connect(m_singleWatcher, &QFutureWatcherBase::finished, this, &BrowserExtPage::onSingleFinished);
    connect(m_batchWatcher, &QFutureWatcherBase::finished, this, &BrowserExtPage::onBatchFinished);
    connect(m_batchWatcher, &QFutureWatcherBase::progressValueChanged, this,
        [this](int value) { m_overlayProgress->setValue(value); });
    connect(m_batchWatcher, &QFutureWatcherBase::progressTextChanged, this, [this](const QString& name) {
        m_overlayItem->setText(
            tr("正在移除「%1」... (%2/%3)").arg(name).arg(m_overlayProgress->value() + 1).arg(m_batch.size()));
    });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createHeader());

    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setStyleSheet(QString::fromLatin1(ScrollStyle));
    m_content = new QWidget(scroll);
    m_content->setObjectName(QStringLiteral("BrowserExtContent"));
    m_content->setStyleSheet(QStringLiteral("QWidget#BrowserExtContent { background:#f0f7ff; }"));
    auto* content = new QVBoxLayout(m_content);
    content->setContentsMargins(24, 16, 24, 16);
    content->setSpacing(12);
    m_groupsLayout = new QVBoxLayout;
    m_groupsLayout->setContentsMargins(0, 0, 0, 0);
    m_groupsLayout->setSpacing(12);
    content->addLayout(m_groupsLayout);
    m_empty = new QLabel(tr("未找到浏览器扩展"), m_content);
    m_empty->setObjectName(QStringLiteral("BrowserExtEmpty"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setStyleSheet(QStringLiteral("font-size:13px; color:#94a3b8; padding:40px;"));
    m_empty->hide();
    content->addWidget(m_empty);
    content->addStretch();
    scroll->setWidget(m_content);
    layout->addWidget(scroll, 1);
    layout->addWidget(createBottomBar());

    m_overlay = createOverlay();
    onSelectionChanged();
}

BrowserExtPage::~BrowserExtPage()
{
    // A QThread must not be destroyed while it runs; a scan asked to stop ends at the next
    // extension. An earlier scanner may still be on its way out, so every one is waited for.
    const auto scanners = findChildren<BrowserExtScanner*>(Qt::FindDirectChildrenOnly);
    for (BrowserExtScanner* scanner : scanners) {
        disconnect(scanner, nullptr, this, nullptr);
        scanner->requestInterruption();
    }
    for (BrowserExtScanner* scanner : scanners)
        scanner->wait();
    // A batch ends after the extension it is removing; half a removal would leave a browser
    // profile that names an extension whose files are gone.
    m_batchWatcher->future().cancel();
}

QWidget* BrowserExtPage::createHeader()
{
    auto* header = new QWidget(this);
    header->setObjectName(QStringLiteral("PageHeader"));
    header->setAttribute(Qt::WA_StyledBackground);
    header->setFixedHeight(56);
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(24, 0, 24, 0);
    layout->setSpacing(12);
    auto* title = new QLabel(tr("浏览器扩展"), header);
    title->setObjectName(QStringLiteral("PageTitleLabel"));
    layout->addWidget(title);
    m_count = new QLabel(header);
    m_count->setObjectName(QStringLiteral("PageSubLabel"));
    // Takes a second line before the title is cut, when a language needs the room.
    m_count->setWordWrap(true);
    layout->addWidget(m_count);
    layout->addStretch();

    m_searchBox = new QLineEdit(header);
    m_searchBox->setObjectName(QStringLiteral("SearchBox"));
    m_searchBox->setPlaceholderText(tr("搜索扩展..."));
    m_searchBox->setClearButtonEnabled(true);
    // Gives way before the title and the count do, when a language needs the room.
    m_searchBox->setMinimumWidth(140);
    m_searchBox->setMaximumWidth(220);
    m_searchBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_searchBox, &QLineEdit::textChanged, this, &BrowserExtPage::onSearch);
    layout->addWidget(m_searchBox);

    m_refresh = new QPushButton(tr("↻ 刷新"), header);
    m_refresh->setObjectName(QStringLiteral("BtnGhost"));
    m_refresh->setCursor(Qt::PointingHandCursor);
    connect(m_refresh, &QPushButton::clicked, this, &BrowserExtPage::startScan);
    layout->addWidget(m_refresh);
    return header;
}

QWidget* BrowserExtPage::createBottomBar()
{
    auto* bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("BottomBar"));
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->setFixedHeight(56);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(24, 0, 24, 0);
    layout->setSpacing(12);
    m_status = new QLabel(bar);
    m_status->setObjectName(QStringLiteral("BarStatLabel"));
    m_status->setTextFormat(Qt::PlainText);
    layout->addWidget(m_status, 1);
    m_removeSelected = new QPushButton(bar);
    m_removeSelected->setObjectName(QStringLiteral("BrowserExtRemoveSelected"));
    m_removeSelected->setCursor(Qt::PointingHandCursor);
    m_removeSelected->setFixedHeight(34);
    m_removeSelected->setStyleSheet(
        QStringLiteral("QPushButton { background:#ef4444; color:white; border:none; border-radius:8px; font-size:13px; "
                       "font-weight:600; padding:0 18px; }"
                       "QPushButton:hover { background:#dc2626; }"
                       "QPushButton:disabled { background:#fecaca; color:#fff5f5; }"));
    connect(m_removeSelected, &QPushButton::clicked, this, &BrowserExtPage::onRemoveSelected);
    layout->addWidget(m_removeSelected);
    return bar;
}

QWidget* BrowserExtPage::createOverlay()
{
    auto* overlay = new QWidget(this);
    overlay->setObjectName(QStringLiteral("BrowserExtOverlay"));
    overlay->setAttribute(Qt::WA_StyledBackground);
    overlay->setStyleSheet(QStringLiteral("QWidget#BrowserExtOverlay { background:rgba(240,247,255,0.92); }"));
    auto* outer = new QVBoxLayout(overlay);
    outer->setAlignment(Qt::AlignCenter);

    auto* card = new QWidget(overlay);
    card->setObjectName(QStringLiteral("BrowserExtOverlayCard"));
    card->setAttribute(Qt::WA_StyledBackground);
    card->setFixedWidth(360);
    card->setStyleSheet(QStringLiteral(
        "QWidget#BrowserExtOverlayCard { background:white; border:1px solid #dbeafe; border-radius:14px; }"));
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(28, 24, 28, 24);
    layout->setSpacing(10);
    auto* icon = new QLabel(QStringLiteral("🗑"), card);
    icon->setAlignment(Qt::AlignCenter);
    icon->setStyleSheet(QStringLiteral("font-size:34px; background:transparent;"));
    layout->addWidget(icon);
    m_overlayTitle = new QLabel(card);
    m_overlayTitle->setObjectName(QStringLiteral("BrowserExtOverlayTitle"));
    m_overlayTitle->setAlignment(Qt::AlignCenter);
    m_overlayTitle->setStyleSheet(
        QStringLiteral("font-size:15px; font-weight:700; color:#0f172a; background:transparent;"));
    layout->addWidget(m_overlayTitle);
    m_overlayItem = new QLabel(card);
    m_overlayItem->setObjectName(QStringLiteral("BrowserExtOverlayItem"));
    m_overlayItem->setAlignment(Qt::AlignCenter);
    m_overlayItem->setTextFormat(Qt::PlainText);
    m_overlayItem->setStyleSheet(QStringLiteral("font-size:12px; color:#475569; background:transparent;"));
    m_overlayItem->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(m_overlayItem);
    m_overlayProgress = new QProgressBar(card);
    m_overlayProgress->setObjectName(QStringLiteral("BrowserExtOverlayProgress"));
    m_overlayProgress->setTextVisible(false);
    m_overlayProgress->setFixedHeight(6);
    m_overlayProgress->setStyleSheet(
        QStringLiteral("QProgressBar { background:#e2e8f0; border:none; border-radius:3px; }"
                       "QProgressBar::chunk { background:qlineargradient(x1:0,y1:0,x2:1,y2:0, stop:0 #93c5fd, "
                       "stop:1 #2563eb); border-radius:3px; }"));
    layout->addWidget(m_overlayProgress);
    auto* wait = new QLabel(tr("请稍候..."), card);
    wait->setAlignment(Qt::AlignCenter);
    wait->setStyleSheet(QStringLiteral("font-size:11px; color:#94a3b8; background:transparent;"));
    layout->addWidget(wait);
    outer->addWidget(card, 0, Qt::AlignCenter);
    overlay->hide();
    return overlay;
}

void BrowserExtPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_overlay->setGeometry(rect());
}

void BrowserExtPage::startScan()
{
    if (isScanning() || m_busy)
        return;
    m_count->setText(tr("正在扫描浏览器扩展..."));
    m_refresh->setText(tr("正在扫描..."));
    m_refresh->setEnabled(false);
    m_scanDelivered = false;
    m_scanner = new BrowserExtScanner(this);
    connect(m_scanner, &BrowserExtScanner::scanDone, this, &BrowserExtPage::onScanDone);
    connect(m_scanner, &QThread::finished, m_scanner, &QObject::deleteLater);
    m_scanner->start();
}

bool BrowserExtPage::isScanning() const
{
    // The scanner that delivered its list is finished even before its deletion comes round.
    return m_scanner && m_scanner->isRunning() && !m_scanDelivered;
}

void BrowserExtPage::onScanDone(const QList<BrowserExt>& extensions)
{
    m_scanDelivered = true;
    m_refresh->setText(tr("↻ 刷新"));
    m_refresh->setEnabled(true);
    clearGroups();
    m_extensions = extensions;
    for (const BrowserExt& ext : extensions) {
        BrowserGroupWidget* group = nullptr;
        for (BrowserGroupWidget* g : std::as_const(m_groups)) {
            if (g->browser() == ext.browser)
                group = g;
        }
        if (!group) {
            group = new BrowserGroupWidget(ext.browser, m_content);
            connect(group, &BrowserGroupWidget::selectionChanged, this, &BrowserExtPage::onSelectionChanged);
            m_groupsLayout->addWidget(group);
            m_groups.append(group);
        }
        BrowserExtRow* row = group->addExtension(ext);
        connect(row, &BrowserExtRow::removeRequested, this, &BrowserExtPage::onRemoveRequested);
    }
    onSearch(m_search);
}

void BrowserExtPage::clearGroups()
{
    for (BrowserGroupWidget* group : std::as_const(m_groups)) {
        group->hide();
        group->deleteLater();
    }
    m_groups.clear();
}

void BrowserExtPage::onSearch(const QString& text)
{
    m_search = text;
    for (BrowserGroupWidget* group : std::as_const(m_groups))
        group->applyFilter(text);
    updateCount();
    onSelectionChanged();
}

void BrowserExtPage::updateCount()
{
    const int total = static_cast<int>(m_extensions.size());
    int shown = 0;
    for (const BrowserGroupWidget* group : std::as_const(m_groups)) {
        for (const BrowserExtRow* row : group->rows())
            shown += row->matches(m_search) ? 1 : 0;
    }
    m_count->setText(shown < total ? tr("显示 %1 / %2 个扩展").arg(shown).arg(total) : tr("共 %1 个扩展").arg(total));
    m_empty->setVisible(shown == 0);
}

QList<BrowserExtRow*> BrowserExtPage::selectedRows() const
{
    // A row that the search hides is not removed: the user cannot see that it is still ticked.
    QList<BrowserExtRow*> rows;
    for (const BrowserGroupWidget* group : std::as_const(m_groups)) {
        for (BrowserExtRow* row : group->rows()) {
            if (row->isSelected() && row->matches(m_search))
                rows.append(row);
        }
    }
    return rows;
}

void BrowserExtPage::onSelectionChanged()
{
    const qsizetype count = selectedRows().size();
    m_removeSelected->setText(count > 0 ? tr("🗑  移除所选 (%1)").arg(count) : tr("🗑  移除所选"));
    m_removeSelected->setEnabled(count > 0 && !m_busy);
}

void BrowserExtPage::setBusy(bool busy)
{
    m_busy = busy;
    m_refresh->setEnabled(!busy && !isScanning());
    onSelectionChanged();
}

void BrowserExtPage::showOverlay(const QString& title, int total)
{
    m_overlayTitle->setText(title);
    m_overlayItem->clear();
    m_overlayProgress->setRange(0, total);
    m_overlayProgress->setValue(0);
    m_overlay->setGeometry(rect());
    m_overlay->raise();
    m_overlay->show();
}

void BrowserExtPage::hideOverlay()
{
    m_overlay->hide();
}

int BrowserExtPage::killAndWait(const QString& browser)
{
    // Killing waits for the browser to let go of its files; the window keeps painting meanwhile.
    QFutureWatcher<int> watcher;
    QEventLoop loop;
    connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    watcher.setFuture(QtConcurrent::run([browser] { return BrowserExtRemover::killBrowserProcesses(browser); }));
    if (!watcher.isFinished())
        loop.exec();
    return watcher.result();
}

bool BrowserExtPage::ensureBrowsersClosed(const QStringList& browsers, bool batch)
{
    for (;;) {
        QStringList running;
        for (const QString& browser : browsers) {
            if (BrowserExtRemover::isBrowserRunning(browser))
                running.append(browser);
        }
        if (running.isEmpty())
            return true;

        QMessageBox box(QMessageBox::Warning, tr("浏览器正在运行"), QString(), QMessageBox::NoButton, this);
        box.setTextFormat(Qt::RichText);
        if (batch) {
            box.setText(tr("以下浏览器有后台进程仍在运行：<br><b>%1</b>").arg(running.join(tr("、"))));
            box.setInformativeText(tr("点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。"));
        } else {
            box.setText(tr("<b>%1</b> 有后台进程仍在运行。").arg(running.constFirst()));
            box.setInformativeText(
                tr("关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。"));
        }
        QPushButton* force = box.addButton(tr("强制结束并移除"), QMessageBox::AcceptRole);
        QPushButton* retry = box.addButton(tr("重试"), QMessageBox::ActionRole);
        QPushButton* cancel = box.addButton(tr("取消"), QMessageBox::RejectRole);
        box.setDefaultButton(retry);
        box.setEscapeButton(cancel);
        box.exec();
        if (box.clickedButton() == retry)
            continue;
        if (box.clickedButton() != force)
            return false;

        QStringList stubborn;
        for (const QString& browser : std::as_const(running)) {
            const int killed = killAndWait(browser);
            qDebug().noquote() << "[BrowserExtPage] Killed" << killed << "processes of" << browser;
            if (BrowserExtRemover::isBrowserRunning(browser))
                stubborn.append(browser);
        }
        if (stubborn.isEmpty())
            return true;
        const QString text = batch
            ? tr("无法完全终止：%1<br>请在任务管理器中手动结束后重试。").arg(stubborn.join(tr("、")))
            : tr("无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。")
                  .arg(stubborn.constFirst(), browserext::executableFor(stubborn.constFirst()));
        QMessageBox::critical(this, tr("无法终止进程"), text);
        return false;
    }
}

void BrowserExtPage::onRemoveRequested(const BrowserExt& ext)
{
    if (m_busy)
        return;
    QMessageBox ask(QMessageBox::Question, tr("移除扩展"),
        tr("确定要移除 <b>%1</b>？<br><span style='font-size:11px; color:#94a3b8;'>将打开 %2 扩展管理页并复制扩展 "
           "ID</span>")
            .arg(ext.name.toHtmlEscaped(), ext.browser),
        QMessageBox::Yes | QMessageBox::No, this);
    ask.setTextFormat(Qt::RichText);
    ask.setDefaultButton(QMessageBox::No);
    if (ask.exec() != QMessageBox::Yes)
        return;
    setBusy(true);
    if (!ensureBrowsersClosed({ ext.browser }, false)) {
        setBusy(false);
        return;
    }
    m_removing = ext;
    showOverlay(tr("正在移除扩展..."), 1);
    m_overlayItem->setText(tr("正在移除「%1」... (%2/%3)").arg(ext.name).arg(1).arg(1));
    m_singleWatcher->setFuture(QtConcurrent::run([ext] { return BrowserExtRemover::remove(ext); }));
}

void BrowserExtPage::onSingleFinished()
{
    hideOverlay();
    setBusy(false);
    const BrowserExtRemover::Result result = m_singleWatcher->result();
    const BrowserExt ext = m_removing;
    if (result.success) {
        m_status->setText(tr("✓ 已移除「%1」").arg(ext.name));
        startScan();
        return;
    }

    qDebug().noquote() << "[BrowserExtPage] Auto-remove failed:" << result.error;
    QApplication::clipboard()->setText(ext.id);
    openExtensionPage(ext.browser);
    QMessageBox box(QMessageBox::Information, tr("自动移除失败"),
        tr("无法自动移除 <b>%1</b>").arg(ext.name.toHtmlEscaped()), QMessageBox::Ok, this);
    box.setTextFormat(Qt::RichText);
    box.setInformativeText(
        tr("已打开 %1 扩展管理页面。<br>扩展 ID 已复制到剪贴板：<br><span "
           "style='font-family:monospace;color:#2563eb;'>%2</span><br><br>手动移除后请点击<b>刷新</b>。")
            .arg(ext.browser, ext.id.toHtmlEscaped()));
    box.exec();
}

void BrowserExtPage::openExtensionPage(const QString& browser)
{
    const platform::Environment& environment = platform::current().environment();
    const QString localAppData = QString::fromStdWString(environment.localAppData());
    const ExtensionPage page = extensionPageFor(browser, localAppData);
    for (const QString& windowsPath : page.executables) {
        // The sandbox keeps its "C:/" elsewhere; on Windows the path comes back unchanged.
        const QString path = QString::fromStdWString(environment.mapPath(windowsPath.toStdWString()));
        if (QFileInfo(path).isFile()) {
            m_startProgram(path, { page.url });
            return;
        }
    }
    m_openUrl(QUrl(page.helpUrl));
}

void BrowserExtPage::onRemoveSelected()
{
    const QList<BrowserExtRow*> rows = selectedRows();
    if (rows.isEmpty() || m_busy)
        return;
    QMessageBox ask(QMessageBox::Question, tr("批量移除"), tr("确定要移除选中的 <b>%1</b> 个扩展？").arg(rows.size()),
        QMessageBox::Yes | QMessageBox::No, this);
    ask.setTextFormat(Qt::RichText);
    ask.setDefaultButton(QMessageBox::No);
    if (ask.exec() != QMessageBox::Yes)
        return;

    QList<BrowserExt> batch;
    QStringList browsers;
    for (const BrowserExtRow* row : rows) {
        batch.append(row->extension());
        if (!browsers.contains(row->extension().browser))
            browsers.append(row->extension().browser);
    }
    setBusy(true);
    if (!ensureBrowsersClosed(browsers, true)) {
        setBusy(false);
        return;
    }
    m_batch = batch;
    showOverlay(tr("正在移除 %1 个扩展...").arg(batch.size()), static_cast<int>(batch.size()));
    // The pool reports each later item; a progress value of 0 is never reported, so the first is set here.
    m_overlayItem->setText(tr("正在移除「%1」... (%2/%3)").arg(batch.constFirst().name).arg(1).arg(batch.size()));
    m_batchWatcher->setFuture(QtConcurrent::run([batch](QPromise<QList<BrowserExtRemover::Result>>& promise) {
        promise.setProgressRange(0, static_cast<int>(batch.size()));
        QList<BrowserExtRemover::Result> results;
        for (qsizetype i = 0; i < batch.size(); ++i) {
            if (promise.isCanceled())
                return; // the page is gone; the extension being removed was finished
            promise.setProgressValueAndText(static_cast<int>(i), batch.at(i).name);
            results.append(BrowserExtRemover::remove(batch.at(i)));
        }
        promise.setProgressValue(static_cast<int>(batch.size()));
        promise.addResult(results);
    }));
}

void BrowserExtPage::onBatchFinished()
{
    hideOverlay();
    setBusy(false);
    const QList<BrowserExtRemover::Result> results
        = m_batchWatcher->future().resultCount() > 0 ? m_batchWatcher->result() : QList<BrowserExtRemover::Result>();
    QStringList failed;
    int succeeded = 0;
    for (qsizetype i = 0; i < m_batch.size(); ++i) {
        if (i < results.size() && results.at(i).success)
            ++succeeded;
        else
            failed.append(m_batch.at(i).name.toHtmlEscaped());
    }
    QMessageBox box(this);
    box.setTextFormat(Qt::RichText);
    if (failed.isEmpty()) {
        box.setIcon(QMessageBox::Information);
        box.setWindowTitle(tr("移除完成"));
        box.setText(tr("成功移除 <b>%1</b> 个扩展。").arg(succeeded));
        box.setInformativeText(tr("列表将自动刷新。"));
    } else {
        box.setIcon(QMessageBox::Warning);
        box.setWindowTitle(tr("部分移除失败"));
        box.setText(tr("成功 <b>%1</b> 个，失败 <b>%2</b> 个。").arg(succeeded).arg(failed.size()));
        box.setInformativeText(tr("失败项（请手动前往浏览器移除）：<br>%1").arg(failed.join(QLatin1String("<br>"))));
    }
    box.exec();
    m_batch.clear();
    startScan();
}
