#include "cleanuppage.h"

#include "cleanuprowwidget.h"
#include "cleanupscanner.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Lets the window appear before the first scan starts reading the disk.
constexpr int FirstScanDelayMs = 200;
// Gives the user a moment to read the freed amount before the sizes refresh.
constexpr int RescanAfterCleanMs = 500;

constexpr qint64 MiB = 1024 * 1024;
constexpr qint64 GiB = 1024 * MiB;

const char* const ScrollStyle
    = "QScrollArea { background:#f0f7ff; border:none; }"
      "QScrollBar:vertical { background:#f1f5f9; width:6px; margin:0; border:none; }"
      "QScrollBar::handle:vertical { background:#cbd5e1; min-height:30px; border-radius:3px; }"
      "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height:0; }"
      "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background:none; }";

QString totalText(qint64 bytes)
{
    if (bytes < GiB)
        return QStringLiteral("%1M").arg(double(bytes) / MiB, 0, 'f', 0);
    return QStringLiteral("%1G").arg(double(bytes) / GiB, 0, 'f', 1);
}

} // namespace

CleanupPage::CleanupPage(QWidget* parent)
    : QWidget(parent)
    , m_scanner(new CleanupScanner(this))
{
    connect(m_scanner, &CleanupScanner::scanProgress, this, &CleanupPage::onScanProgress);
    connect(m_scanner, &CleanupScanner::scanFinished, this, &CleanupPage::onScanFinished);
    connect(m_scanner, &CleanupScanner::cleanProgress, this, &CleanupPage::onCleanProgress);
    connect(m_scanner, &CleanupScanner::cleanFinished, this, &CleanupPage::onCleanFinished);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createHeader());

    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setStyleSheet(QString::fromLatin1(ScrollStyle));
    auto* content = new QWidget(scroll);
    content->setObjectName(QStringLiteral("CleanupContent"));
    content->setStyleSheet(QStringLiteral("QWidget#CleanupContent { background:#f0f7ff; }"));
    auto* contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(24, 16, 24, 16);
    contentLayout->setSpacing(8);
    // Handed to the scroll area while still empty: setWidget sizes the widget at once, and with its
    // rows in place that would lay out every text before the window is first shown.
    scroll->setWidget(content);
    contentLayout->addWidget(createHeaderCard());

    m_progress = new QProgressBar(content);
    m_progress->setObjectName(QStringLiteral("CleanupProgress"));
    m_progress->setRange(0, 100);
    m_progress->setValue(0);
    m_progress->setFixedHeight(5);
    m_progress->setTextVisible(false);
    m_progress->setStyleSheet(QStringLiteral("QProgressBar { background:#e2e8f0; border:none; border-radius:2px; }"
                                             "QProgressBar::chunk { background:#2563eb; border-radius:2px; }"));
    m_progress->hide();
    contentLayout->addWidget(m_progress);

    const QList<JunkCategory>& categories = m_scanner->categories();
    for (int i = 0; i < categories.size(); ++i) {
        auto* row = new CleanupRowWidget(categories.at(i), content);
        row->setIndex(i);
        connect(row, &CleanupRowWidget::selectionChanged, this, [this] { updateSelectionSummary(); });
        m_rows.append(row);
        contentLayout->addWidget(row);
    }
    contentLayout->addWidget(createBottomBar());
    contentLayout->addStretch();
    layout->addWidget(scroll, 1);

    m_rescanTimer = new QTimer(this);
    m_rescanTimer->setSingleShot(true);
    m_rescanTimer->setInterval(RescanAfterCleanMs);
    connect(m_rescanTimer, &QTimer::timeout, this, &CleanupPage::startRescanAfterClean);

    // The page is "scanning" from the start, so nothing may start a clean before the first scan.
    setBusy(true);
    QTimer::singleShot(FirstScanDelayMs, m_scanner, &CleanupScanner::scan);
}

QWidget* CleanupPage::createHeader()
{
    auto* header = new QWidget(this);
    header->setObjectName(QStringLiteral("PageHeader"));
    header->setAttribute(Qt::WA_StyledBackground);
    header->setFixedHeight(50);
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(24, 0, 24, 0);
    layout->setSpacing(12);
    auto* title = new QLabel(tr("磁盘清理"), header);
    title->setObjectName(QStringLiteral("PageTitleLabel"));
    auto* subtitle = new QLabel(tr("扫描系统垃圾文件，安全释放磁盘空间"), header);
    subtitle->setObjectName(QStringLiteral("PageSubLabel"));
    // Some languages need two lines beside the title; the header has the height for them.
    subtitle->setWordWrap(true);
    layout->addWidget(title);
    layout->addWidget(subtitle, 1);
    return header;
}

QWidget* CleanupPage::createHeaderCard()
{
    auto* card = new QWidget(this);
    card->setObjectName(QStringLiteral("CleanupHeaderCard"));
    card->setAttribute(Qt::WA_StyledBackground);
    card->setFixedHeight(110);
    card->setStyleSheet(QStringLiteral("QWidget#CleanupHeaderCard { background: qlineargradient(x1:0,y1:0,x2:1,y2:0, "
                                       "stop:0 #1d4ed8, stop:1 #0ea5e9); border-radius:14px; }"));
    auto* layout = new QHBoxLayout(card);
    layout->setContentsMargins(22, 0, 22, 0);
    layout->setSpacing(16);

    m_totalLabel = new QLabel(QStringLiteral("…"), card);
    m_totalLabel->setObjectName(QStringLiteral("CleanupTotalLabel"));
    m_totalLabel->setFixedSize(68, 68);
    m_totalLabel->setAlignment(Qt::AlignCenter);
    m_totalLabel->setStyleSheet(QStringLiteral(
        "background:rgba(255,255,255,0.18); border-radius:34px; color:white; font-size:16px; font-weight:700;"));
    layout->addWidget(m_totalLabel);

    auto* texts = new QVBoxLayout;
    texts->setContentsMargins(0, 0, 0, 0);
    texts->setSpacing(6);
    texts->addStretch();
    m_statusTitle = new QLabel(tr("正在扫描…"), card);
    m_statusTitle->setObjectName(QStringLiteral("CleanupStatusTitle"));
    m_statusTitle->setFixedHeight(22);
    m_statusTitle->setStyleSheet(
        QStringLiteral("font-size:15px; font-weight:700; color:white; background:transparent;"));
    m_statusDetail = new QLabel(tr("请稍候"), card);
    m_statusDetail->setObjectName(QStringLiteral("CleanupStatusDetail"));
    m_statusDetail->setFixedHeight(14);
    m_statusDetail->setStyleSheet(
        QStringLiteral("font-size:12px; color:rgba(255,255,255,0.85); background:transparent;"));
    m_summaryLine = new QLabel(card);
    m_summaryLine->setObjectName(QStringLiteral("CleanupSummaryLine"));
    m_summaryLine->setFixedHeight(12);
    m_summaryLine->setStyleSheet(
        QStringLiteral("font-size:11px; color:rgba(255,255,255,0.7); background:transparent;"));
    // A long status in some language must not widen the page past the window: the card keeps
    // its width and the rows below stay in view.
    for (QLabel* label : { m_statusTitle, m_statusDetail, m_summaryLine }) {
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        texts->addWidget(label);
    }
    texts->addStretch();
    layout->addLayout(texts, 1);

    m_rescanButton = new QPushButton(tr("🔄 重新扫描"), card);
    m_rescanButton->setObjectName(QStringLiteral("CleanupRescanButton"));
    m_rescanButton->setFlat(true);
    m_rescanButton->setFixedHeight(36);
    m_rescanButton->setCursor(Qt::PointingHandCursor);
    m_rescanButton->setStyleSheet(
        QStringLiteral("QPushButton { background:rgba(255,255,255,0.13); color:white; "
                       "border:1px solid rgba(255,255,255,0.3); border-radius:8px; padding:0 16px; font-size:13px; }"
                       "QPushButton:hover { background:rgba(255,255,255,0.22); }"
                       "QPushButton:disabled { color:rgba(255,255,255,0.5); }"));
    connect(m_rescanButton, &QPushButton::clicked, this, &CleanupPage::onRescanClicked);
    layout->addWidget(m_rescanButton);
    return card;
}

QWidget* CleanupPage::createBottomBar()
{
    auto* bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("CleanupBottomBar"));
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->setStyleSheet(
        QStringLiteral("QWidget#CleanupBottomBar { background:white; border:1px solid #e2e8f0; border-radius:10px; }"));
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(16, 10, 16, 10);
    layout->setSpacing(12);

    m_selectAllButton = new QPushButton(tr("☑ 全选"), bar);
    m_selectAllButton->setObjectName(QStringLiteral("CleanupSelectAllButton"));
    m_selectAllButton->setFixedHeight(30);
    m_selectAllButton->setCursor(Qt::PointingHandCursor);
    m_selectAllButton->setStyleSheet(
        QStringLiteral("QPushButton { background:white; color:#2563eb; border:1px solid #bfdbfe; border-radius:8px; "
                       "padding:0 14px; font-size:12px; }"
                       "QPushButton:hover { background:#eff6ff; }"));
    connect(m_selectAllButton, &QPushButton::clicked, this, &CleanupPage::onSelectAllClicked);

    m_bottomSummary = new QLabel(bar);
    m_bottomSummary->setObjectName(QStringLiteral("CleanupBottomSummary"));
    m_bottomSummary->setStyleSheet(
        QStringLiteral("font-size:12px; color:#475569; background:transparent; border:none;"));
    // Between two buttons whose texts vary by language: the summary wraps onto a second line
    // rather than pushing the clean button out of the page.
    m_bottomSummary->setWordWrap(true);
    QSizePolicy summaryPolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    summaryPolicy.setHeightForWidth(true);
    m_bottomSummary->setSizePolicy(summaryPolicy);

    m_cleanButton = new QPushButton(tr("🗑 清理选中项"), bar);
    m_cleanButton->setObjectName(QStringLiteral("CleanupCleanButton"));
    m_cleanButton->setFixedHeight(30);
    m_cleanButton->setCursor(Qt::PointingHandCursor);
    m_cleanButton->setStyleSheet(
        QStringLiteral("QPushButton { background:#2563eb; color:white; border:none; border-radius:8px; "
                       "padding:0 18px; font-size:12px; font-weight:600; }"
                       "QPushButton:hover { background:#1d4ed8; }"
                       "QPushButton:disabled { background:#93c5fd; }"));
    connect(m_cleanButton, &QPushButton::clicked, this, &CleanupPage::onCleanClicked);

    layout->addWidget(m_selectAllButton);
    layout->addWidget(m_bottomSummary, 1);
    layout->addWidget(m_cleanButton);
    return bar;
}

void CleanupPage::setBusy(bool busy)
{
    m_cleanButton->setEnabled(!busy);
    m_rescanButton->setEnabled(!busy);
}

void CleanupPage::onScanProgress(int percent)
{
    m_progress->setValue(percent);
}

void CleanupPage::onScanFinished()
{
    const QList<JunkCategory>& categories = m_scanner->categories();
    for (int i = 0; i < m_rows.size() && i < categories.size(); ++i)
        m_rows.at(i)->setSize(categories.at(i).size);
    m_statusTitle->setText(tr("扫描完成"));
    updateSelectionSummary();
    setBusy(false);
}

void CleanupPage::onCleanProgress(int percent)
{
    m_progress->setValue(percent);
}

void CleanupPage::onCleanFinished(qint64 bytesFreed)
{
    m_cleaning = false;
    m_cleanButton->setEnabled(true);
    m_progress->hide();
    m_summaryLine->setText(tr("✓ 清理完成，释放 <b>%1</b>").arg(CleanupRowWidget::formatSize(bytesFreed)));
    // Restarted by every clean that ends, so a clean started meanwhile pushes the rescan past
    // its own end.
    m_rescanTimer->start();
}

void CleanupPage::startRescanAfterClean()
{
    if (m_cleaning)
        return; // the running clean starts the timer again when it ends
    // The scanner writes the table while it scans: no clean may start until it has finished.
    setBusy(true);
    m_scanner->scan();
}

void CleanupPage::onCleanClicked()
{
    QList<int> positions;
    for (const CleanupRowWidget* row : std::as_const(m_rows)) {
        if (row->isSelected())
            positions.append(row->index());
    }
    if (positions.isEmpty())
        return;
    m_cleaning = true;
    m_rescanTimer->stop();
    setBusy(true);
    m_progress->setValue(0);
    m_progress->show();
    m_scanner->clean(positions);
}

void CleanupPage::onRescanClicked()
{
    for (CleanupRowWidget* row : std::as_const(m_rows))
        row->setSize(0);
    m_statusTitle->setText(tr("正在扫描…"));
    m_summaryLine->setText(tr("正在扫描…"));
    setBusy(true);
    m_scanner->scan();
}

void CleanupPage::onSelectAllClicked()
{
    bool anyUnselected = false;
    for (const CleanupRowWidget* row : std::as_const(m_rows))
        anyUnselected = anyUnselected || !row->isSelected();
    const bool target = anyUnselected;
    m_selectAllButton->setText(target ? tr("☐ 取消全选") : tr("☑ 全选"));
    // Each row repaints and emits selectionChanged() only when its state actually changes.
    for (CleanupRowWidget* row : std::as_const(m_rows))
        row->setSelected(target);
    updateSelectionSummary();
}

void CleanupPage::updateSelectionSummary()
{
    const QList<JunkCategory>& categories = m_scanner->categories();
    int selectedCount = 0;
    qint64 selectedBytes = 0;
    for (const CleanupRowWidget* row : std::as_const(m_rows)) {
        if (!row->isSelected())
            continue;
        ++selectedCount;
        if (row->index() >= 0 && row->index() < categories.size())
            selectedBytes += categories.at(row->index()).size;
    }
    const QString selectedText = CleanupRowWidget::formatSize(selectedBytes);
    m_bottomSummary->setText(tr("已选 <b>%1</b> 类  ·  预计释放 <b>%2</b>").arg(selectedCount).arg(selectedText));

    qint64 total = 0;
    for (const JunkCategory& category : categories)
        total += category.size;
    m_totalLabel->setText(totalText(total));
    // Counts every category in the table, empty ones included.
    m_statusDetail->setText(
        tr("发现 %1 类可清理文件，共 %2").arg(categories.size()).arg(CleanupRowWidget::formatSize(total)));
    m_summaryLine->setText(tr("已选 %1 类  ·  预计释放 %2").arg(selectedCount).arg(selectedText));
}
