#include "residuedialog.h"

#include "residuerowwidget.h"
#include "residuescanner.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Lets the dialog paint itself before the scan starts reading the disk.
constexpr int StartDelayMs = 100;
constexpr int DialogWidth = 680;
constexpr int DialogHeight = 560;
// Longer status texts keep their end, where the folder's own name is.
constexpr int StatusMaxChars = 55;
constexpr int StatusTailChars = 52;

constexpr qint64 KiB = 1024;
constexpr qint64 MiB = 1024 * KiB;
constexpr qint64 GiB = 1024 * MiB;

enum Page { ProgressPage = 0, ResultsPage = 1 };

const char* const CleanButtonStyle
    = "QPushButton { background:#ef4444; color:white; border:none; border-radius:8px; padding:0 18px; "
      "font-size:12px; font-weight:600; min-height:32px; }"
      "QPushButton:hover { background:#dc2626; }"
      "QPushButton:disabled { background:#fca5a5; }";

} // namespace

ResidueDialog::ResidueDialog(QWidget* parent)
    : QDialog(parent)
    , m_scanner(new ResidueScanner(this))
{
    setWindowTitle(tr("Clean Residues"));
    setFixedSize(DialogWidth, DialogHeight);
    setModal(true);
    setObjectName(QStringLiteral("ResidueDialog"));
    setStyleSheet(QStringLiteral("QDialog#ResidueDialog { background:#f8fafc; }"));

    connect(m_scanner, &ResidueScanner::scanProgress, this, &ResidueDialog::onScanProgress);
    connect(m_scanner, &ResidueScanner::scanFinished, this, &ResidueDialog::onScanFinished);
    connect(m_scanner, &ResidueScanner::cleanProgress, this, &ResidueDialog::onCleanProgress);
    connect(m_scanner, &ResidueScanner::cleanFinished, this, &ResidueDialog::onCleanFinished);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);

    auto* title = new QLabel(tr("🧹  Clean Residues"), this);
    title->setObjectName(QStringLiteral("ResidueTitle"));
    title->setStyleSheet(QStringLiteral("font-size:17px; font-weight:700; color:#0f172a;"));
    layout->addWidget(title);
    m_subtitle = new QLabel(tr("Scanning for residue files..."), this);
    m_subtitle->setObjectName(QStringLiteral("ResidueSubtitle"));
    m_subtitle->setStyleSheet(QStringLiteral("font-size:12px; color:#64748b;"));
    layout->addWidget(m_subtitle);

    m_pages = new QStackedWidget(this);
    layout->addWidget(m_pages, 1);

    auto* progressPage = new QWidget(m_pages);
    auto* progressLayout = new QVBoxLayout(progressPage);
    progressLayout->setContentsMargins(40, 0, 40, 0);
    progressLayout->setSpacing(12);
    progressLayout->addStretch();
    m_statusLabel = new QLabel(tr("Initializing..."), progressPage);
    m_statusLabel->setObjectName(QStringLiteral("ResidueStatus"));
    m_statusLabel->setAlignment(Qt::AlignCenter);
    m_statusLabel->setTextFormat(Qt::PlainText);
    m_statusLabel->setStyleSheet(QStringLiteral("font-size:13px; font-weight:600; color:#1e40af;"));
    progressLayout->addWidget(m_statusLabel);
    m_progress = new QProgressBar(progressPage);
    m_progress->setObjectName(QStringLiteral("ResidueProgress"));
    m_progress->setRange(0, 100);
    m_progress->setValue(0);
    m_progress->setFixedHeight(6);
    m_progress->setTextVisible(false);
    progressLayout->addWidget(m_progress);
    progressLayout->addStretch();
    m_pages->addWidget(progressPage);

    auto* resultsPage = new QWidget(m_pages);
    auto* resultsLayout = new QVBoxLayout(resultsPage);
    resultsLayout->setContentsMargins(0, 0, 0, 0);
    resultsLayout->setSpacing(8);
    m_summaryLabel = new QLabel(resultsPage);
    m_summaryLabel->setObjectName(QStringLiteral("ResidueSummary"));
    m_summaryLabel->setStyleSheet(QStringLiteral("font-size:13px; color:#475569;"));
    resultsLayout->addWidget(m_summaryLabel);
    m_scroll = new QScrollArea(resultsPage);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setStyleSheet(
        QStringLiteral("QScrollArea { background:white; border:1px solid #e2e8f0; border-radius:10px; }"));
    resultsLayout->addWidget(m_scroll, 1);
    m_emptyLabel = new QLabel(tr("✅  No residue files found!"), resultsPage);
    m_emptyLabel->setObjectName(QStringLiteral("ResidueEmpty"));
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setStyleSheet(QStringLiteral("font-size:14px; font-weight:600; color:#059669;"));
    m_emptyLabel->hide();
    resultsLayout->addWidget(m_emptyLabel, 1);
    m_pages->addWidget(resultsPage);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    m_selectAllButton = new QPushButton(tr("Select All"), this);
    m_deselectAllButton = new QPushButton(tr("Deselect All"), this);
    m_cancelButton = new QPushButton(tr("Cancel"), this);
    for (QPushButton* b : { m_selectAllButton, m_deselectAllButton, m_cancelButton }) {
        b->setObjectName(QStringLiteral("BtnGhost"));
        b->setCursor(Qt::PointingHandCursor);
        b->setAutoDefault(false);
    }
    m_selectAllButton->setEnabled(false);
    m_deselectAllButton->setEnabled(false);
    m_cleanButton = new QPushButton(tr("Scanning..."), this);
    m_cleanButton->setObjectName(QStringLiteral("ResidueCleanButton"));
    m_cleanButton->setCursor(Qt::PointingHandCursor);
    m_cleanButton->setStyleSheet(QString::fromLatin1(CleanButtonStyle));
    m_cleanButton->setAutoDefault(false);
    m_cleanButton->setEnabled(false);
    buttons->addWidget(m_selectAllButton);
    buttons->addWidget(m_deselectAllButton);
    buttons->addStretch();
    buttons->addWidget(m_cancelButton);
    buttons->addWidget(m_cleanButton);
    layout->addLayout(buttons);

    connect(m_selectAllButton, &QPushButton::clicked, this, &ResidueDialog::onSelectAll);
    connect(m_deselectAllButton, &QPushButton::clicked, this, &ResidueDialog::onDeselectAll);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_cleanButton, &QPushButton::clicked, this, &ResidueDialog::onCleanClicked);
}

ResidueDialog::ResidueDialog(const QList<InstalledApp>& installed, QWidget* parent)
    : ResidueDialog(parent)
{
    QStringList names;
    QStringList publishers;
    for (const InstalledApp& app : installed) {
        names << app.name;
        publishers << app.publisher;
    }
    m_scanner->setInstalledApps(names, publishers);
    m_startAction = [this] { m_scanner->scan(); };
}

ResidueDialog::ResidueDialog(const QList<UninstalledApp>& uninstalled, QWidget* parent)
    : ResidueDialog(parent)
{
    m_startAction = [this, uninstalled] { m_scanner->scanForApps(uninstalled); };
}

ResidueDialog::~ResidueDialog()
{
    // Nothing the worker still sends may reach this half-destroyed dialog; the scanner's own
    // destructor then stops the worker and waits for it.
    disconnect(m_scanner, nullptr, this, nullptr);
    if (m_scanner->isRunning())
        m_scanner->stopScan();
    delete m_scanner;
    m_scanner = nullptr;
}

QString ResidueDialog::formatSize(qint64 bytes)
{
    if (bytes == 0)
        return QStringLiteral("0 B");
    if (bytes >= GiB)
        return QStringLiteral("%1 GB").arg(double(bytes) / GiB, 0, 'f', 1);
    if (bytes >= MiB)
        return QStringLiteral("%1 MB").arg(double(bytes) / MiB, 0, 'f', 0);
    if (bytes < KiB)
        return QStringLiteral("%1 B").arg(bytes);
    return QStringLiteral("%1 KB").arg(double(bytes) / KiB, 0, 'f', 0);
}

QString ResidueDialog::shortenPath(const QString& path)
{
    if (path.size() <= StatusMaxChars)
        return path;
    return QStringLiteral("...") + path.right(StatusTailChars);
}

void ResidueDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (m_startAction && !m_started) {
        m_started = true;
        m_busy = true;
        // A dialog closed within the delay starts nothing.
        QTimer::singleShot(StartDelayMs, this, [this] {
            if (isVisible())
                m_startAction();
        });
    }
}

void ResidueDialog::done(int result)
{
    // Closing mid-scan or mid-clean ends the work; its last signals are not waited for.
    if (m_busy)
        m_scanner->stopScan();
    m_busy = false;
    QDialog::done(result);
}

void ResidueDialog::onScanProgress(int percent, const QString& currentPath)
{
    m_progress->setValue(percent);
    m_statusLabel->setText(shortenPath(currentPath));
}

void ResidueDialog::onScanFinished(qint64 totalBytes)
{
    m_busy = false;
    qDeleteAll(m_rows);
    m_rows.clear();

    auto* list = new QWidget;
    list->setObjectName(QStringLiteral("ResidueList"));
    list->setStyleSheet(QStringLiteral("QWidget#ResidueList { background:white; }"));
    auto* listLayout = new QVBoxLayout(list);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->setSpacing(0);
    const QList<ResidueItem> items = m_scanner->results();
    for (const ResidueItem& item : items) {
        auto* row = new ResidueRowWidget(item, list);
        listLayout->addWidget(row);
        m_rows << row;
    }
    listLayout->addStretch();
    m_scroll->setWidget(list);

    const bool found = !items.isEmpty();
    if (found) {
        m_summaryLabel->setText(
            tr("Found <b>%1</b> items  ·  <b>%2</b> reclaimable").arg(items.size()).arg(formatSize(totalBytes)));
    } else {
        m_summaryLabel->setText(tr("No residue files found"));
    }
    m_scroll->setVisible(found);
    m_emptyLabel->setVisible(!found);
    m_subtitle->hide();
    m_pages->setCurrentIndex(ResultsPage);
    m_cleanButton->setText(tr("🗑  Clean Selected"));
    m_cleanButton->setEnabled(found);
    m_selectAllButton->setEnabled(found);
    m_deselectAllButton->setEnabled(found);
}

void ResidueDialog::setChecks(bool checked)
{
    for (ResidueRowWidget* row : std::as_const(m_rows))
        row->setChecked(checked);
}

void ResidueDialog::onSelectAll()
{
    setChecks(true);
}

void ResidueDialog::onDeselectAll()
{
    setChecks(false);
}

void ResidueDialog::onCleanClicked()
{
    QList<int> indices;
    for (int i = 0; i < m_rows.size(); ++i) {
        if (m_rows.at(i)->isChecked())
            indices << i;
    }
    if (indices.isEmpty())
        return;
    m_busy = true;
    m_pages->setCurrentIndex(ProgressPage);
    m_statusLabel->setText(tr("Cleaning..."));
    m_progress->setRange(0, 100);
    m_progress->setValue(0);
    m_cleanButton->setEnabled(false);
    m_selectAllButton->setEnabled(false);
    m_deselectAllButton->setEnabled(false);
    m_scanner->clean(indices);
}

void ResidueDialog::onCleanProgress(int percent)
{
    m_progress->setValue(percent);
    m_statusLabel->setText(tr("Cleaning... %1%").arg(percent));
}

void ResidueDialog::onCleanFinished(qint64 freedBytes)
{
    m_busy = false;
    m_statusLabel->setText(tr("✅  Cleaned — freed %1").arg(formatSize(freedBytes)));
    m_progress->setValue(100);
    m_cleanButton->setText(tr("Done ✓"));
    m_cleanButton->setEnabled(true);
    disconnect(m_cleanButton, &QPushButton::clicked, this, &ResidueDialog::onCleanClicked);
    connect(m_cleanButton, &QPushButton::clicked, this, &QDialog::accept);
}
