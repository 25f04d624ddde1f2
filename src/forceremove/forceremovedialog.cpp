#include "forceremovedialog.h"

#include "forceremoverowwidget.h"
#include "forceremovescanner.h"

#include <QCheckBox>
#include <QDebug>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int DialogWidth = 700;
constexpr int DialogHeight = 580;
constexpr int ScanStartDelayMs = 150; // lets the dialog paint before the pool work begins
constexpr int ProgressWidth = 320;
constexpr int ProgressHeight = 6;
constexpr int StatusMaxChars = 60;
constexpr int StatusCutChars = 57;
constexpr qint64 MiB = 1024 * 1024;

const char* const ProgressStyle = "QProgressBar { background:#dbeafe; border:none; border-radius:3px; }"
                                  "QProgressBar::chunk { background:#2563eb; border-radius:3px; }";

QLabel* makeLabel(const QString& text, const QString& style, QWidget* parent, const char* objectName = nullptr)
{
    auto* label = new QLabel(text, parent);
    label->setStyleSheet(style);
    label->setAlignment(Qt::AlignCenter);
    if (objectName)
        label->setObjectName(QLatin1String(objectName));
    return label;
}

// Rich text folds runs of spaces; the summaries keep the two spaces around their dot.
QString keepSpaces(const QString& richText)
{
    QString text = richText;
    return text.replace(QStringLiteral("  "), QStringLiteral("&nbsp; "));
}

QProgressBar* makeProgress(QWidget* parent, const char* objectName)
{
    auto* bar = new QProgressBar(parent);
    bar->setObjectName(QLatin1String(objectName));
    bar->setFixedSize(ProgressWidth, ProgressHeight);
    bar->setRange(0, 100);
    bar->setValue(0);
    bar->setTextVisible(false);
    bar->setStyleSheet(QLatin1String(ProgressStyle));
    return bar;
}

} // namespace

ForceRemoveDialog::ForceRemoveDialog(const InstalledApp& app, QWidget* parent)
    : QDialog(parent)
    , m_app(app)
    , m_scanner(new ForceRemoveScanner(this))
{
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::Dialog);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    setFixedSize(DialogWidth, DialogHeight);
    setWindowTitle(tr("Force Remove"));

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* container = new QWidget(this);
    container->setObjectName(QStringLiteral("FRContainer"));
    container->setAttribute(Qt::WA_StyledBackground);
    container->setStyleSheet(QStringLiteral("QWidget#FRContainer { background:#ffffff; border-radius:16px; }"));
    outer->addWidget(container);

    auto* layout = new QVBoxLayout(container);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(buildHeader());

    m_views = new QStackedWidget(container);
    m_views->setObjectName(QStringLiteral("FRViews"));
    m_views->addWidget(buildScanningView());
    m_views->addWidget(buildListView());
    m_views->addWidget(buildRemovingView());
    m_views->addWidget(buildDoneView());
    layout->addWidget(m_views, 1);

    auto* footer = new QWidget(container);
    footer->setObjectName(QStringLiteral("FRFooter"));
    footer->setStyleSheet(QStringLiteral("QWidget#FRFooter { border-top:1px solid #e2e8f0; }"));
    auto* footerLayout = new QHBoxLayout(footer);
    footerLayout->setContentsMargins(20, 12, 20, 14);
    m_summary = new QLabel(footer);
    m_summary->setObjectName(QStringLiteral("FRSummary"));
    m_summary->setTextFormat(Qt::RichText);
    m_summary->setStyleSheet(QStringLiteral("color:#475569; font-size:13px;"));
    footerLayout->addWidget(m_summary, 1);
    auto* cancel = new QPushButton(tr("Cancel"), footer);
    cancel->setObjectName(QStringLiteral("BtnGhost"));
    cancel->setCursor(Qt::PointingHandCursor);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    footerLayout->addWidget(cancel);
    m_primary = new QPushButton(tr("🗑  Force Remove Selected"), footer);
    m_primary->setObjectName(QStringLiteral("BtnPrimary"));
    m_primary->setCursor(Qt::PointingHandCursor);
    m_primary->setEnabled(false);
    connect(m_primary, &QPushButton::clicked, this, &ForceRemoveDialog::onExecuteClicked);
    footerLayout->addWidget(m_primary);
    layout->addWidget(footer);

    connect(m_scanner, &ForceRemoveScanner::scanProgress, this, &ForceRemoveDialog::onScanProgress);
    connect(m_scanner, &ForceRemoveScanner::scanFinished, this, &ForceRemoveDialog::onScanFinished);
    connect(m_scanner, &ForceRemoveScanner::executeProgress, this, &ForceRemoveDialog::onExecuteProgress);
    connect(m_scanner, &ForceRemoveScanner::executeFinished, this, &ForceRemoveDialog::onExecuteFinished);
}

ForceRemoveDialog::~ForceRemoveDialog()
{
    m_scanner->cancel();
}

QWidget* ForceRemoveDialog::buildHeader()
{
    auto* header = new QWidget(this);
    header->setObjectName(QStringLiteral("FRHeader"));
    header->setAttribute(Qt::WA_StyledBackground);
    header->setStyleSheet(QStringLiteral("QWidget#FRHeader { background:qlineargradient(x1:0, y1:0, x2:1, y2:0,"
                                         " stop:0 #0C447C, stop:1 #185FA5);"
                                         " border-top-left-radius:16px; border-top-right-radius:16px; }"));
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(24, 18, 18, 18);
    auto* titles = new QVBoxLayout;
    titles->setSpacing(4);
    auto* title = new QLabel(tr("Force Remove"), header);
    title->setObjectName(QStringLiteral("FRTitle"));
    title->setStyleSheet(QStringLiteral("color:#ffffff; font-size:18px; font-weight:700;"));
    auto* subtitle = new QLabel(tr("Forcefully removing: %1").arg(m_app.name), header);
    subtitle->setObjectName(QStringLiteral("FRSubtitle"));
    subtitle->setTextFormat(Qt::PlainText);
    subtitle->setStyleSheet(QStringLiteral("color:rgba(255,255,255,0.8); font-size:12px;"));
    titles->addWidget(title);
    titles->addWidget(subtitle);
    layout->addLayout(titles, 1);
    auto* close = new QPushButton(QStringLiteral("✕"), header);
    close->setObjectName(QStringLiteral("FRClose"));
    close->setFixedSize(30, 30);
    close->setCursor(Qt::PointingHandCursor);
    close->setStyleSheet(QStringLiteral("QPushButton { color:#ffffff; background:rgba(255,255,255,0.12); border:none;"
                                        " border-radius:15px; font-size:14px; }"
                                        "QPushButton:hover { background:rgba(255,255,255,0.28); }"));
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(close, 0, Qt::AlignTop);
    return header;
}

QWidget* ForceRemoveDialog::buildScanningView()
{
    auto* view = new QWidget(this);
    auto* layout = new QVBoxLayout(view);
    layout->setSpacing(14);
    layout->addStretch();
    layout->addWidget(makeLabel(QStringLiteral("🔍"), QStringLiteral("font-size:48px;"), view));
    layout->addWidget(makeLabel(tr("Scanning for removal targets..."),
        QStringLiteral("color:#1e293b; font-size:15px; font-weight:600;"), view));
    m_scanProgress = makeProgress(view, "FRScanProgress");
    layout->addWidget(m_scanProgress, 0, Qt::AlignHCenter);
    m_scanStatus = makeLabel(QString(), QStringLiteral("color:#64748b; font-size:12px;"), view, "FRScanStatus");
    m_scanStatus->setTextFormat(Qt::PlainText);
    layout->addWidget(m_scanStatus);
    layout->addStretch();
    return view;
}

QWidget* ForceRemoveDialog::buildListView()
{
    auto* view = new QWidget(this);
    auto* layout = new QVBoxLayout(view);
    layout->setContentsMargins(20, 14, 20, 8);
    layout->setSpacing(10);

    auto* banner = new QLabel(tr("⚠  Review each item carefully. High-risk items are unchecked by default."), view);
    banner->setObjectName(QStringLiteral("FRBanner"));
    banner->setWordWrap(true);
    banner->setStyleSheet(QStringLiteral(
        "color:#9a3412; background:#fff7ed; border:1px solid #fed7aa; border-radius:8px; padding:8px 12px;"
        " font-size:12px;"));
    layout->addWidget(banner);

    m_locationNote = new QLabel(view);
    m_locationNote->setObjectName(QStringLiteral("FRLocationNote"));
    m_locationNote->setWordWrap(true);
    m_locationNote->setTextFormat(Qt::PlainText);
    m_locationNote->setStyleSheet(QStringLiteral("color:#b45309; font-size:12px;"));
    m_locationNote->hide();
    layout->addWidget(m_locationNote);

    auto* toolbar = new QHBoxLayout;
    auto* selectAll = new QPushButton(tr("Select All"), view);
    auto* deselectAll = new QPushButton(tr("Deselect All"), view);
    for (QPushButton* button : { selectAll, deselectAll }) {
        button->setObjectName(QStringLiteral("BtnGhost"));
        button->setCursor(Qt::PointingHandCursor);
        toolbar->addWidget(button);
    }
    selectAll->setProperty("frAction", QStringLiteral("selectAll"));
    deselectAll->setProperty("frAction", QStringLiteral("deselectAll"));
    connect(selectAll, &QPushButton::clicked, this, [this] { setAllChecked(true); });
    connect(deselectAll, &QPushButton::clicked, this, [this] { setAllChecked(false); });
    toolbar->addStretch();
    layout->addLayout(toolbar);

    auto* scroll = new QScrollArea(view);
    scroll->setObjectName(QStringLiteral("FRList"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setStyleSheet(
        QStringLiteral("QScrollArea#FRList { border:1px solid #e2e8f0; border-radius:10px; background:#ffffff; }"));
    auto* content = new QWidget(scroll);
    content->setObjectName(QStringLiteral("FRListContent"));
    content->setStyleSheet(QStringLiteral("QWidget#FRListContent { background:#ffffff; }"
                                          "QWidget#FRRow { border-bottom:1px solid #f1f5f9; }"));
    m_rowLayout = new QVBoxLayout(content);
    m_rowLayout->setContentsMargins(0, 0, 0, 0);
    m_rowLayout->setSpacing(0);
    m_emptyLabel = makeLabel(
        tr("✅  Nothing found to remove."), QStringLiteral("color:#15803d; font-size:14px;"), content, "FREmpty");
    m_emptyLabel->setMinimumHeight(120);
    m_emptyLabel->hide();
    m_rowLayout->addWidget(m_emptyLabel);
    m_rowLayout->addStretch();
    scroll->setWidget(content);
    layout->addWidget(scroll, 1);
    return view;
}

QWidget* ForceRemoveDialog::buildRemovingView()
{
    auto* view = new QWidget(this);
    auto* layout = new QVBoxLayout(view);
    layout->setSpacing(14);
    layout->addStretch();
    layout->addWidget(makeLabel(QStringLiteral("🗑"), QStringLiteral("font-size:48px;"), view));
    layout->addWidget(makeLabel(
        tr("Removing selected items..."), QStringLiteral("color:#1e293b; font-size:15px; font-weight:600;"), view));
    m_removeProgress = makeProgress(view, "FRRemoveProgress");
    layout->addWidget(m_removeProgress, 0, Qt::AlignHCenter);
    m_removeStatus = makeLabel(QString(), QStringLiteral("color:#64748b; font-size:12px;"), view, "FRRemoveStatus");
    m_removeStatus->setTextFormat(Qt::PlainText);
    layout->addWidget(m_removeStatus);
    layout->addStretch();
    return view;
}

QWidget* ForceRemoveDialog::buildDoneView()
{
    auto* view = new QWidget(this);
    auto* layout = new QVBoxLayout(view);
    layout->setSpacing(12);
    layout->addStretch();
    layout->addWidget(makeLabel(QStringLiteral("✅"), QStringLiteral("font-size:48px;"), view));
    layout->addWidget(makeLabel(tr("Force remove complete"),
        QStringLiteral("color:#15803d; font-size:15px; font-weight:bold;"), view, "FRDoneTitle"));
    layout->addWidget(makeLabel(tr("The application and its associated files have been removed."),
        QStringLiteral("color:#64748b; font-size:12px;"), view));
    layout->addStretch();
    return view;
}

ForceRemoveDialog::View ForceRemoveDialog::currentView() const
{
    return static_cast<View>(m_views->currentIndex());
}

QString ForceRemoveDialog::statusText(const QString& text)
{
    return text.size() > StatusMaxChars ? text.left(StatusCutChars) + QStringLiteral("...") : text;
}

void ForceRemoveDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (m_scanStarted)
        return;
    m_scanStarted = true;
    QTimer::singleShot(ScanStartDelayMs, this, [this] {
        m_scanner->scan(m_app);
        if (m_scanner->installLocationRefused()) {
            const QString location = QDir::toNativeSeparators(m_app.installLocation);
            const QString why = tr("Install location %1 is a system or user folder: it is left alone.").arg(location);
            m_scanStatus->setText(statusText(why));
            m_scanStatus->setToolTip(why);
            m_locationNote->setText(why);
            m_locationNote->show();
        }
    });
}

void ForceRemoveDialog::onScanProgress(int percent, const QString& text)
{
    m_scanProgress->setValue(percent);
    m_scanStatus->setText(statusText(text));
}

void ForceRemoveDialog::onScanFinished(qint64 totalBytes)
{
    const QList<ForceRemoveItem> items = m_scanner->items();
    for (const ForceRemoveItem& item : items) {
        auto* row = new ForceRemoveRowWidget(item, m_rowLayout->parentWidget());
        m_rowLayout->insertWidget(m_rowLayout->count() - 1, row);
        m_rows.append(row);
    }
    if (items.isEmpty()) {
        m_summary->setText(tr("Nothing found to remove"));
        m_emptyLabel->show();
    } else {
        m_summary->setText(keepSpaces(tr("Found <b>%1</b> items  ·  <b>%2</b> reclaimable")
                                          .arg(items.size())
                                          .arg(ForceRemoveRowWidget::formatSize(totalBytes))));
    }
    m_primary->setEnabled(!items.isEmpty());
    m_views->setCurrentIndex(ListView);
    qDebug() << "[ForceRemoveDialog] Scan done:" << items.size() << "items," << totalBytes / MiB << "MB";
}

void ForceRemoveDialog::setAllChecked(bool checked)
{
    // Locked rows keep their state, so a high-risk target is never selected in bulk.
    for (ForceRemoveRowWidget* row : std::as_const(m_rows)) {
        if (row->checkBox()->isEnabled())
            row->checkBox()->setChecked(checked);
    }
}

void ForceRemoveDialog::onExecuteClicked()
{
    if (m_done) {
        accept();
        return;
    }
    QList<int> indices;
    for (int i = 0; i < m_rows.size(); ++i) {
        if (m_rows.at(i)->isChecked())
            indices.append(i);
    }
    if (indices.isEmpty())
        return;
    m_removeProgress->setValue(0);
    m_removeStatus->setText(tr("Starting..."));
    m_views->setCurrentIndex(RemovingView);
    m_primary->setEnabled(false);
    m_scanner->execute(indices);
}

void ForceRemoveDialog::onExecuteProgress(int percent, const QString& text)
{
    m_removeProgress->setValue(percent);
    m_removeStatus->setText(statusText(text));
}

void ForceRemoveDialog::onExecuteFinished(qint64 freedBytes)
{
    m_done = true;
    m_views->setCurrentIndex(DoneView);
    m_summary->setText(
        keepSpaces(tr("Force remove complete  ·  freed <b>%1</b>").arg(ForceRemoveRowWidget::formatSize(freedBytes))));
    m_primary->setText(tr("Done ✓"));
    m_primary->setObjectName(QStringLiteral("FRDoneButton"));
    m_primary->setStyleSheet(
        QStringLiteral("QPushButton { background:qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 #059669, stop:1 "
                       "#10b981); color:#ffffff; border:none; border-radius:8px; font-size:13px; font-weight:600;"
                       " padding:0px 18px; min-height:30px; }"));
    m_primary->setEnabled(true);
    qDebug() << "[ForceRemoveDialog] Execute done, freed:" << freedBytes / MiB << "MB";
}
