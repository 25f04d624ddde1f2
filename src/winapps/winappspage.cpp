#include "winappspage.h"

#include "processrunner.h"
#include "widgets/mirror.h"
#include "winappremover.h"
#include "winapprow.h"
#include "winappscanner.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>
#include <QtConcurrent/QtConcurrentRun>

namespace {

// Lets the user read the result line before the list is rebuilt under it.
constexpr int RefreshAfterSuccessMs = 1200;
// After a message box the user has read the outcome already.
constexpr int RefreshAfterBoxMs = 800;
constexpr int SpinnerStepMs = 120;

const QLatin1String EdgePrefix("Microsoft.MicrosoftEdge");

// One side of the ring is blue at a time; stepping the side round makes it spin.
const char* const SpinnerSides[] = { "top", "right", "bottom", "left" };

const char* const ScrollStyle
    = "QScrollArea { background:#ffffff; border:none; }"
      "QScrollBar:vertical { background:#f1f5f9; width:10px; margin:0; border:none; }"
      "QScrollBar::handle:vertical { background:#cbd5e1; min-height:30px; border-radius:5px; }"
      "QScrollBar::handle:vertical:hover { background:#94a3b8; }"
      "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height:0; }"
      "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background:none; }";

QString spinnerStyle(int step)
{
    return QStringLiteral("QLabel { border:2.5px solid #bfdbfe; border-%1-color:#2563eb; border-radius:9px;"
                          " background:transparent; }")
        .arg(QLatin1String(SpinnerSides[step % 4]));
}

QLabel* columnLabel(const QString& text, int width, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setStyleSheet(QStringLiteral("font-size:12px; font-weight:600; color:#64748b; background:transparent;"));
    // The columns are as wide as their data; a heading longer than that in some language takes a
    // second line rather than being cut off.
    label->setWordWrap(true);
    if (width > 0)
        label->setFixedWidth(width);
    return label;
}

} // namespace

WinAppsPage::WinAppsPage(QWidget* parent)
    : QWidget(parent)
    , m_runner(std::make_shared<QProcessRunner>())
    , m_watcher(new QFutureWatcher<QList<RemoveResult>>(this))
{
    connect(m_watcher, &QFutureWatcher<QList<RemoveResult>>::finished, this, &WinAppsPage::onRemovalFinished);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createHeader());
    layout->addWidget(createBanner());
    layout->addWidget(createColumnHeader());

    auto* scroll = new QScrollArea(this);
    scroll->setObjectName(QStringLiteral("WinAppsScroll"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setStyleSheet(QLatin1String(ScrollStyle));
    m_rowsContainer = new QWidget(scroll);
    m_rowsContainer->setObjectName(QStringLiteral("WinAppsRows"));
    m_rowsContainer->setStyleSheet(QStringLiteral("QWidget#WinAppsRows { background:#ffffff; }"));
    m_rowsLayout = new QVBoxLayout(m_rowsContainer);
    m_rowsLayout->setContentsMargins(16, 8, 16, 8);
    m_rowsLayout->setSpacing(6);
    m_rowsLayout->addStretch();
    scroll->setWidget(m_rowsContainer);
    layout->addWidget(scroll, 1);
    layout->addWidget(createBottomBar());

    m_overlay = createOverlay();
    m_overlay->hide();
    updateCounts();
}

WinAppsPage::~WinAppsPage()
{
    // The scanner is a thread of its own: it must end before its QThread object goes. A removal
    // needs no wait: its worker holds only its own copies and a guarded pointer to the page, and
    // ends after the app it is removing, which a closing program should not cut short.
    *m_stopRemoval = true;
    // Every scanner still alive, including one that has delivered its list but not yet ended.
    const auto scanners = findChildren<WinAppScanner*>();
    for (WinAppScanner* scanner : scanners) {
        disconnect(scanner, nullptr, this, nullptr);
        scanner->requestInterruption();
    }
    for (WinAppScanner* scanner : scanners)
        scanner->wait();
}

QWidget* WinAppsPage::createHeader()
{
    auto* header = new QWidget(this);
    header->setObjectName(QStringLiteral("WinAppsHeader"));
    header->setAttribute(Qt::WA_StyledBackground);
    header->setStyleSheet(
        QStringLiteral("QWidget#WinAppsHeader { background:#ffffff; border-bottom:1px solid #e2e8f0; }"));
    header->setFixedHeight(60);
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(24, 0, 24, 0);
    layout->setSpacing(12);

    auto* title = new QLabel(tr("Windows 应用"), header);
    title->setObjectName(QStringLiteral("WinAppsTitle"));
    title->setStyleSheet(QStringLiteral("font-size:17px; font-weight:bold; color:#0f172a; background:transparent;"));
    m_countLabel = new QLabel(header);
    m_countLabel->setObjectName(QStringLiteral("WinAppsCount"));
    m_countLabel->setStyleSheet(QStringLiteral("font-size:13px; color:#64748b; background:transparent;"));

    m_searchEdit = new QLineEdit(header);
    m_searchEdit->setObjectName(QStringLiteral("WinAppsSearch"));
    m_searchEdit->setPlaceholderText(tr("搜索应用..."));
    m_searchEdit->setClearButtonEnabled(true);
    // Gives way before the title and the count do, when a language needs the room.
    m_searchEdit->setMinimumWidth(140);
    m_searchEdit->setMaximumWidth(240);
    m_searchEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_searchEdit->setStyleSheet(QStringLiteral("QLineEdit { background:#f1f5f9; border:1px solid #e2e8f0;"
                                               " border-radius:8px; padding:0 10px; min-height:32px; font-size:13px; }"
                                               "QLineEdit:focus { background:#ffffff; border:1px solid #93c5fd; }"));
    connect(m_searchEdit, &QLineEdit::textChanged, this, &WinAppsPage::onSearch);

    m_refreshButton = new QPushButton(tr("↻ 刷新"), header);
    m_refreshButton->setObjectName(QStringLiteral("WinAppsRefresh"));
    m_refreshButton->setCursor(Qt::PointingHandCursor);
    m_refreshButton->setStyleSheet(
        QStringLiteral("QPushButton { background:#eff6ff; color:#2563eb; border:1px solid #bfdbfe; border-radius:8px;"
                       " padding:0 14px; min-height:32px; font-size:13px; font-weight:600; }"
                       "QPushButton:hover { background:#dbeafe; }"
                       "QPushButton:disabled { color:#94a3b8; background:#f8fafc; border-color:#e2e8f0; }"));
    connect(m_refreshButton, &QPushButton::clicked, this, &WinAppsPage::refresh);

    layout->addWidget(title);
    layout->addWidget(m_countLabel);
    layout->addStretch();
    layout->addWidget(m_searchEdit);
    layout->addWidget(m_refreshButton);
    return header;
}

QWidget* WinAppsPage::createBanner()
{
    m_banner = new QWidget(this);
    m_banner->setObjectName(QStringLiteral("WinAppsBanner"));
    m_banner->setAttribute(Qt::WA_StyledBackground);
    m_banner->setStyleSheet(
        QStringLiteral("QWidget#WinAppsBanner { background:#eff6ff; border-bottom:1px solid #bfdbfe; }"));
    auto* outer = new QVBoxLayout(m_banner);
    outer->setContentsMargins(24, 10, 24, 10);
    outer->setSpacing(8);
    auto* line = new QHBoxLayout;
    line->setSpacing(10);
    m_spinner = new QLabel(m_banner);
    m_spinner->setObjectName(QStringLiteral("WinAppsSpinner"));
    m_spinner->setFixedSize(18, 18);
    m_spinner->setStyleSheet(spinnerStyle(0));
    m_bannerText = new QLabel(m_banner);
    m_bannerText->setObjectName(QStringLiteral("WinAppsBannerText"));
    m_bannerText->setStyleSheet(QStringLiteral("font-size:13px; color:#1e40af; background:transparent;"));
    line->addWidget(m_spinner);
    line->addWidget(m_bannerText, 1);
    outer->addLayout(line);
    auto* bar = new QProgressBar(m_banner);
    bar->setObjectName(QStringLiteral("WinAppsBannerBar"));
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setFixedHeight(3);
    bar->setStyleSheet(QStringLiteral("QProgressBar { background:#dbeafe; border:none; border-radius:1px; }"
                                      "QProgressBar::chunk { background:qlineargradient(x1:0, y1:0, x2:1, y2:0,"
                                      " stop:0 #60a5fa, stop:1 #2563eb); border-radius:1px; }"));
    outer->addWidget(bar);

    m_spinTimer = new QTimer(this);
    m_spinTimer->setInterval(SpinnerStepMs);
    connect(m_spinTimer, &QTimer::timeout, this, [this] { m_spinner->setStyleSheet(spinnerStyle(++m_spinStep)); });
    m_banner->hide();
    return m_banner;
}

QWidget* WinAppsPage::createColumnHeader()
{
    auto* columns = new QWidget(this);
    columns->setObjectName(QStringLiteral("WinAppsColumns"));
    columns->setAttribute(Qt::WA_StyledBackground);
    columns->setStyleSheet(
        QStringLiteral("QWidget#WinAppsColumns { background:#f8fafc; border-bottom:1px solid #e2e8f0; }"));
    columns->setFixedHeight(34);
    auto* layout = new QHBoxLayout(columns);
    // Lines up with the rows: the rows' own margin inside the scroll area plus their check column.
    Mirror::keepMarginsMirrored(columns, layout, QMargins(16 + WinAppRow::CheckColumn, 0, 16 + 12 + 10, 0));
    layout->setSpacing(WinAppRow::ColumnSpacing);
    layout->addWidget(columnLabel(tr("名称"), 0, columns), 1);
    layout->addWidget(columnLabel(tr("发行者"), WinAppRow::PublisherColumn, columns));
    layout->addWidget(columnLabel(tr("版本"), WinAppRow::VersionColumn, columns));
    layout->addWidget(columnLabel(tr("安装日期"), WinAppRow::DateColumn, columns));
    layout->addWidget(columnLabel(tr("大小"), WinAppRow::SizeColumn, columns));
    layout->addSpacing(WinAppRow::actionColumnWidth() + 8);
    return columns;
}

QWidget* WinAppsPage::createBottomBar()
{
    auto* bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("WinAppsBottomBar"));
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->setStyleSheet(
        QStringLiteral("QWidget#WinAppsBottomBar { background:#ffffff; border-top:1px solid #e2e8f0; }"));
    bar->setFixedHeight(56);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(24, 0, 24, 0);
    m_selectionLabel = new QLabel(bar);
    m_selectionLabel->setObjectName(QStringLiteral("WinAppsSelection"));
    m_selectionLabel->setStyleSheet(QStringLiteral("font-size:13px; color:#475569; background:transparent;"));
    m_removeButton = new QPushButton(bar);
    m_removeButton->setObjectName(QStringLiteral("WinAppsRemove"));
    m_removeButton->setCursor(Qt::PointingHandCursor);
    m_removeButton->setStyleSheet(QStringLiteral(
        "QPushButton { background:#dc2626; color:#ffffff; border:none; border-radius:8px; padding:0 18px;"
        " min-height:34px; font-size:13px; font-weight:600; }"
        "QPushButton:hover { background:#b91c1c; }"
        "QPushButton:disabled { background:#fca5a5; }"));
    connect(m_removeButton, &QPushButton::clicked, this, &WinAppsPage::onRemoveSelected);
    layout->addWidget(m_selectionLabel, 1);
    layout->addWidget(m_removeButton);
    return bar;
}

QWidget* WinAppsPage::createOverlay()
{
    auto* overlay = new QWidget(this);
    overlay->setObjectName(QStringLiteral("WinAppsOverlay"));
    overlay->setAttribute(Qt::WA_StyledBackground);
    overlay->setStyleSheet(QStringLiteral("QWidget#WinAppsOverlay { background:rgba(240,247,255,220); }"));
    auto* outer = new QVBoxLayout(overlay);
    auto* card = new QWidget(overlay);
    card->setObjectName(QStringLiteral("WinAppsOverlayCard"));
    card->setAttribute(Qt::WA_StyledBackground);
    card->setStyleSheet(QStringLiteral("QWidget#WinAppsOverlayCard { background:#ffffff; border:1px solid #bfdbfe;"
                                       " border-radius:14px; }"));
    card->setFixedWidth(380);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(28, 24, 28, 24);
    layout->setSpacing(10);
    auto* icon = new QLabel(QStringLiteral("🗑"), card);
    icon->setAlignment(Qt::AlignCenter);
    icon->setStyleSheet(QStringLiteral("font-size:36px; background:transparent; border:none;"));
    m_overlayText = new QLabel(tr("正在移除应用..."), card);
    m_overlayText->setObjectName(QStringLiteral("WinAppsOverlayText"));
    m_overlayText->setAlignment(Qt::AlignCenter);
    m_overlayText->setWordWrap(true);
    m_overlayText->setStyleSheet(QStringLiteral("font-size:15px; color:#1e40af; background:transparent; border:none;"));
    m_overlayBar = new QProgressBar(card);
    m_overlayBar->setObjectName(QStringLiteral("WinAppsOverlayBar"));
    m_overlayBar->setTextVisible(false);
    m_overlayBar->setFixedHeight(6);
    m_overlayBar->setStyleSheet(QStringLiteral("QProgressBar { background:#dbeafe; border:none; border-radius:3px; }"
                                               "QProgressBar::chunk { background:#2563eb; border-radius:3px; }"));
    m_overlayCount = new QLabel(card);
    m_overlayCount->setObjectName(QStringLiteral("WinAppsOverlayCount"));
    m_overlayCount->setAlignment(Qt::AlignCenter);
    m_overlayCount->setStyleSheet(
        QStringLiteral("font-size:13px; color:#475569; background:transparent; border:none;"));
    auto* wait = new QLabel(tr("请稍候..."), card);
    wait->setAlignment(Qt::AlignCenter);
    wait->setStyleSheet(QStringLiteral("font-size:12px; color:#94a3b8; background:transparent; border:none;"));
    layout->addWidget(icon);
    layout->addWidget(m_overlayText);
    layout->addWidget(m_overlayBar);
    layout->addWidget(m_overlayCount);
    layout->addWidget(wait);
    outer->addWidget(card, 0, Qt::AlignCenter);
    return overlay;
}

void WinAppsPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_overlay->setGeometry(rect());
}

void WinAppsPage::setProcessRunner(std::shared_ptr<ProcessRunner> runner)
{
    m_runner = std::move(runner);
}

void WinAppsPage::startScan()
{
    refresh();
}

void WinAppsPage::refresh()
{
    if (m_scanning || m_removing)
        return;
    m_apps.clear();
    rebuildRows();
    m_scanning = true;
    m_countLabel->setText(tr("正在扫描..."));
    m_bannerText->setText(tr("正在扫描 Windows 应用..."));
    m_banner->show();
    m_spinTimer->start();
    setBusy(true);

    auto* scanner = new WinAppScanner(this);
    connect(scanner, &WinAppScanner::scanProgress, this, &WinAppsPage::onScanProgress);
    connect(scanner, &WinAppScanner::scanDone, this, &WinAppsPage::onScanDone);
    connect(scanner, &QThread::finished, scanner, &QObject::deleteLater);
    scanner->start();
}

void WinAppsPage::onScanProgress(int found)
{
    m_bannerText->setText(tr("正在扫描 Windows 应用... 已找到 %1 个").arg(found));
}

void WinAppsPage::onScanDone(const QList<WinApp>& apps)
{
    m_scanning = false;
    m_apps = apps;
    m_spinTimer->stop();
    m_banner->hide();
    setBusy(false);
    rebuildRows();
}

void WinAppsPage::onSearch()
{
    m_search = m_searchEdit->text().trimmed();
    rebuildRows();
}

void WinAppsPage::rebuildRows()
{
    for (WinAppRow* row : std::as_const(m_rows))
        delete row;
    m_rows.clear();
    m_selected = 0;

    for (const WinApp& app : std::as_const(m_apps)) {
        if (!m_search.isEmpty() && !app.displayName.contains(m_search, Qt::CaseInsensitive)
            && !app.publisher.contains(m_search, Qt::CaseInsensitive))
            continue;
        auto* row = new WinAppRow(app, m_rowsContainer);
        connect(row, &WinAppRow::selectionChanged, this, &WinAppsPage::onRowSelectionChanged);
        connect(row, &WinAppRow::removeRequested, this, &WinAppsPage::onRemoveRequested);
        m_rowsLayout->insertWidget(m_rowsLayout->count() - 1, row);
        m_rows.append(row);
    }
    updateCounts();
}

void WinAppsPage::onRowSelectionChanged()
{
    m_selected = int(std::count_if(m_rows.cbegin(), m_rows.cend(), [](const WinAppRow* r) { return r->isSelected(); }));
    updateCounts();
}

void WinAppsPage::updateCounts()
{
    if (!m_scanning) {
        const int shown = int(m_rows.size());
        const int total = int(m_apps.size());
        m_countLabel->setText(
            shown != total ? tr("显示 %1 / %2 个应用").arg(shown).arg(total) : tr("共 %1 个应用").arg(total));
    }
    m_removeButton->setText(m_selected == 0 ? tr("🗑  移除所选") : tr("🗑  移除所选 (%1)").arg(m_selected));
    m_removeButton->setEnabled(m_selected > 0 && !m_removing && !m_scanning);
    m_selectionLabel->setText(m_selected == 0 ? QString() : tr("已选择 %1 个应用").arg(m_selected));
}

void WinAppsPage::setBusy(bool busy)
{
    m_refreshButton->setEnabled(!busy);
    for (WinAppRow* row : std::as_const(m_rows))
        row->setEnabled(!busy);
    updateCounts();
}

void WinAppsPage::onRemoveRequested(const WinApp& app)
{
    if (m_removing || m_scanning)
        return;
    if (app.name.startsWith(EdgePrefix, Qt::CaseInsensitive)) {
        QMessageBox::information(this, tr("无法卸载 Microsoft Edge"),
            tr("Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。\n\n如需更换默认浏览器，请前往\n"
               "「设置 → 应用 → 默认应用」进行设置。"));
        return;
    }
    const auto answer = QMessageBox::question(
        this, tr("移除应用"), tr("确定要移除 \"%1\"？").arg(app.displayName), QMessageBox::Yes | QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    m_overlayText->setText(tr("正在移除应用..."));
    removeApps({ app });
}

void WinAppsPage::onRemoveSelected()
{
    if (m_removing || m_scanning)
        return;
    QList<WinApp> chosen;
    for (const WinAppRow* row : std::as_const(m_rows)) {
        if (row->isSelected())
            chosen.append(row->app());
    }
    if (chosen.isEmpty())
        return;
    const auto answer = QMessageBox::question(this, tr("批量移除"),
        tr("确定移除选中的 %1 个应用？\n此操作不可撤销。").arg(chosen.size()), QMessageBox::Yes | QMessageBox::No,
        QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    m_overlayText->setText(tr("正在移除 %1 个应用...").arg(chosen.size()));
    removeApps(chosen);
}

void WinAppsPage::removeApps(const QList<WinApp>& apps)
{
    if (apps.isEmpty() || m_removing)
        return;
    m_removing = true;
    m_overlayBar->setRange(0, int(apps.size()));
    m_overlayBar->setValue(0);
    m_overlayCount->setText(tr("%1 / %2 个应用").arg(0).arg(apps.size()));
    m_overlay->setGeometry(rect());
    m_overlay->raise();
    m_overlay->show();
    setBusy(true);

    // The worker gets its own copies and reaches the page only through queued calls that a
    // destroyed page no longer receives.
    const QPointer<WinAppsPage> page(this);
    const std::shared_ptr<ProcessRunner> runner = m_runner;
    m_watcher->setFuture(QtConcurrent::run([apps, runner, page, stop = m_stopRemoval] {
        WinAppRemover remover(*runner);
        return remover.removeAll(
            apps,
            [page](const WinApp& app, int position, int count) {
                QMetaObject::invokeMethod(
                    qApp,
                    [page, name = app.displayName, position, count] {
                        if (page)
                            page->onRemovalStatus(name, position, count);
                    },
                    Qt::QueuedConnection);
            },
            stop.get());
    }));
}

void WinAppsPage::onRemovalStatus(const QString& displayName, int position, int count)
{
    m_overlayText->setText(tr("正在移除「%1」...（%2/%3）").arg(displayName).arg(position).arg(count));
    m_overlayBar->setValue(position - 1);
    m_overlayCount->setText(tr("%1 / %2 个应用").arg(position).arg(count));
}

void WinAppsPage::onRemovalFinished()
{
    const QList<RemoveResult> results = m_watcher->result();
    m_removing = false;
    m_overlay->hide();
    setBusy(false);

    int succeeded = 0;
    QStringList failures;
    for (const RemoveResult& r : results) {
        if (r.success) {
            ++succeeded;
            continue;
        }
        // The box shows rich text; names and messages come from packages and tools.
        failures << tr("• %1：%2")
                        .arg(r.displayName.toHtmlEscaped(),
                            r.message.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
    }
    if (failures.isEmpty()) {
        m_selectionLabel->setText(tr("✓ 已移除 %1 个应用，正在刷新...").arg(succeeded));
        QTimer::singleShot(RefreshAfterSuccessMs, this, &WinAppsPage::refresh);
        return;
    }

    QMessageBox box(this);
    box.setTextFormat(Qt::RichText);
    if (succeeded == 0) {
        box.setWindowTitle(tr("移除失败"));
        box.setIcon(QMessageBox::Critical);
        box.setText(tr("所有应用移除失败。"));
    } else {
        box.setWindowTitle(tr("部分移除失败"));
        box.setIcon(QMessageBox::Warning);
        box.setText(tr("成功 <b>%1</b> 个，失败 <b>%2</b> 个。").arg(succeeded).arg(failures.size()));
    }
    box.setInformativeText(tr("失败详情：<br>%1<br><br>系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。")
                               .arg(failures.join(QLatin1String("<br>"))));
    box.exec();
    QTimer::singleShot(RefreshAfterBoxMs, this, &WinAppsPage::refresh);
}
