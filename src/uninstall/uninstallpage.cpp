#include "uninstallpage.h"

#include "uninstallmanager.h"
#include "uninstallrowwidget.h"

#include <forceremove/forceremovedialog.h>
#include <residue/residuedialog.h>
#include <widgets/mirror.h>

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const char* const FilterAll = "";
const char* const FilterUnused = "old";

const char* const UninstallSelectedStyle
    = "QPushButton { background:#ef4444; color:white; border:none; border-radius:8px; font-size:12px; "
      "font-weight:600; padding:0 16px; min-height:30px; }"
      "QPushButton:hover { background:#dc2626; }"
      "QPushButton:disabled { background:#fca5a5; }";

QLabel* label(const QString& text, const QString& style, QWidget* parent)
{
    auto* l = new QLabel(text, parent);
    l->setStyleSheet(style);
    return l;
}

// A row the filter hides. Rows the filter keeps are never shown one by one: they appear with their
// list, which spares a style-sheet polish per row while the list is built.
bool isFilteredOut(const QWidget* row)
{
    return row->testAttribute(Qt::WA_WState_ExplicitShowHide) && row->testAttribute(Qt::WA_WState_Hidden);
}

// Stacks the visible rows one under the other. A box layout would weigh every row's size
// constraints on each change; with a thousand rows of one fixed height that is most of the cost
// of building or filtering the list.
class RowList final : public QWidget {
public:
    static constexpr int SideMargin = 24;
    static constexpr int EndMargin = 8;

    void setRows(const QList<UninstallRowWidget*>& rows) { m_rows = rows; }

    void relayout()
    {
        const int w = qMax(0, width() - 2 * SideMargin);
        int y = EndMargin;
        for (UninstallRowWidget* row : std::as_const(m_rows)) {
            if (isFilteredOut(row))
                continue;
            row->setGeometry(SideMargin, y, w, UninstallRowWidget::RowHeight);
            y += UninstallRowWidget::RowHeight;
        }
        const int h = y + EndMargin;
        if (minimumHeight() != h)
            setMinimumHeight(h);
    }

    QSize sizeHint() const override { return QSize(0, minimumHeight()); }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QWidget::resizeEvent(event);
        if (event->oldSize().width() != width())
            relayout();
    }

private:
    QList<UninstallRowWidget*> m_rows;
};

} // namespace

UninstallPage::UninstallPage(QWidget* parent)
    : QWidget(parent)
    , m_manager(new UninstallManager(this))
{
    connect(m_manager, &UninstallManager::refreshFinished, this, &UninstallPage::onRefreshFinished);
    connect(m_manager, &UninstallManager::uninstallStarted, this, &UninstallPage::onUninstallStarted);
    connect(m_manager, &UninstallManager::uninstallFinished, this, &UninstallPage::onUninstallFinished);
    connect(m_manager, &UninstallManager::batchFinished, this, &UninstallPage::onBatchFinished);

    setObjectName(QStringLiteral("UninstallPage"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createHeader());
    layout->addWidget(createToolRow());
    layout->addWidget(createColumnHeads());
    layout->addWidget(createListArea(), 1);
    layout->addWidget(createBottomBar());
    updateBottomBar();
}

UninstallPage::~UninstallPage()
{
    // The manager, destroyed after this page's own part, waits for its work and may finish it on
    // this thread; nothing it then reports may reach the half-destroyed page.
    disconnect(m_manager, nullptr, this, nullptr);
}

QWidget* UninstallPage::createHeader()
{
    auto* header = new QWidget(this);
    header->setObjectName(QStringLiteral("PageHeader"));
    header->setAttribute(Qt::WA_StyledBackground);
    header->setFixedHeight(116);
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(24, 16, 24, 12);
    layout->setSpacing(24);

    auto* titles = new QVBoxLayout;
    titles->setSpacing(4);
    titles->addStretch();
    auto* title = new QLabel(tr("Software Uninstall"), header);
    title->setObjectName(QStringLiteral("PageTitleLabel"));
    auto* subtitle = new QLabel(tr("Manage installed programs · Batch uninstall · Clean registry residues"), header);
    subtitle->setObjectName(QStringLiteral("PageSubLabel"));
    // Some languages need two lines beside the counters; the header has the height for them.
    subtitle->setWordWrap(true);
    titles->addWidget(title);
    titles->addWidget(subtitle);
    titles->addStretch();
    layout->addLayout(titles, 1);

    const auto counter = [header](QLabel*& number, const QString& caption, const char* color) {
        auto* box = new QVBoxLayout;
        box->setSpacing(0);
        box->addStretch();
        number = label(QStringLiteral("0"),
            QStringLiteral("font-size:18px; font-weight:600; color:%1;").arg(QLatin1String(color)), header);
        number->setAlignment(Qt::AlignCenter);
        auto* text = label(caption, QStringLiteral("font-size:11px; color:#7e9bc5;"), header);
        text->setAlignment(Qt::AlignCenter);
        box->addWidget(number);
        box->addWidget(text);
        box->addStretch();
        return box;
    };
    layout->addLayout(counter(m_appsCount, tr(" apps"), "#0f2d6b"));
    layout->addLayout(counter(m_unusedCount, tr(" unused"), "#ef4444"));
    m_appsCount->setObjectName(QStringLiteral("AppsCount"));
    m_unusedCount->setObjectName(QStringLiteral("UnusedCount"));
    return header;
}

QWidget* UninstallPage::createToolRow()
{
    auto* row = new QWidget(this);
    row->setObjectName(QStringLiteral("UninstallToolRow"));
    row->setAttribute(Qt::WA_StyledBackground);
    row->setStyleSheet(QStringLiteral("QWidget#UninstallToolRow { background:#ffffff; }"));
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(24, 10, 24, 10);
    layout->setSpacing(8);

    m_searchBox = new QLineEdit(row);
    m_searchBox->setObjectName(QStringLiteral("SearchBox"));
    m_searchBox->setFixedHeight(28);
    m_searchBox->setPlaceholderText(tr("Search installed software..."));
    m_searchBox->setClearButtonEnabled(true);
    connect(m_searchBox, &QLineEdit::textChanged, this, &UninstallPage::onSearch);
    layout->addWidget(m_searchBox, 1);

    const auto chip = [row](const QString& text, bool active) {
        auto* b = new QPushButton(text, row);
        b->setObjectName(QStringLiteral("ChipButton"));
        b->setFixedHeight(26);
        b->setCheckable(true);
        b->setChecked(active);
        b->setProperty("active", active ? "true" : "false");
        b->setCursor(Qt::PointingHandCursor);
        return b;
    };
    m_allChip = chip(tr("All"), true);
    m_unusedChip = chip(tr("Unused"), false);
    connect(m_allChip, &QPushButton::clicked, this, [this] { onFilterChanged(QLatin1String(FilterAll)); });
    connect(m_unusedChip, &QPushButton::clicked, this, [this] { onFilterChanged(QLatin1String(FilterUnused)); });
    layout->addWidget(m_allChip);
    layout->addWidget(m_unusedChip);

    m_refreshButton = new QPushButton(tr("↺ Refresh"), row);
    m_refreshButton->setObjectName(QStringLiteral("BtnGhost"));
    m_refreshButton->setFixedHeight(26);
    m_refreshButton->setCursor(Qt::PointingHandCursor);
    connect(m_refreshButton, &QPushButton::clicked, this, &UninstallPage::onRefreshClicked);
    layout->addWidget(m_refreshButton);

    m_sortBox = new QComboBox(row);
    m_sortBox->setObjectName(QStringLiteral("SortBox"));
    m_sortBox->setFixedHeight(26);
    m_sortBox->addItems({ tr("By Size"), tr("By Date"), tr("By Name") });
    connect(m_sortBox, &QComboBox::currentIndexChanged, this, &UninstallPage::onSortChanged);
    layout->addWidget(m_sortBox);
    return row;
}

QWidget* UninstallPage::createColumnHeads()
{
    auto* heads = new QWidget(this);
    heads->setObjectName(QStringLiteral("UninstallColumnHeads"));
    heads->setAttribute(Qt::WA_StyledBackground);
    heads->setFixedHeight(30);
    heads->setStyleSheet(QStringLiteral("QWidget#UninstallColumnHeads { background:#f8fafc; "
                                        "border-top:1px solid #e2e8f0; border-bottom:1px solid #e2e8f0; }"
                                        "QLabel { font-size:11px; font-weight:600; color:#64748b; }"));
    // Same geometry as the rows, whose list sits 24 pixels in from the page's edges.
    using Row = UninstallRowWidget;
    auto* layout = new QHBoxLayout(heads);
    Mirror::keepMarginsMirrored(heads, layout,
        QMargins(24 + Row::NameX, 0, 24 + Row::SidePadding + Row::buttonWidth(font()) + Row::ColumnGap, 0));
    layout->setSpacing(Row::ColumnGap);
    const auto head = [heads](const QString& text, int width) {
        auto* l = new QLabel(text, heads);
        // A head longer than its column takes a second line rather than losing its end.
        l->setWordWrap(true);
        if (width > 0)
            l->setFixedWidth(width);
        return l;
    };
    layout->addWidget(head(tr("Name"), 0), 1);
    layout->addWidget(head(tr("Publisher"), Row::PublisherWidth));
    layout->addWidget(head(tr("Size"), Row::SizeWidth));
    layout->addWidget(head(tr("Install Date"), Row::DateWidth));
    return heads;
}

QWidget* UninstallPage::createListArea()
{
    auto* area = new QWidget(this);
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins(0, 0, 0, 0);

    m_scroll = new QScrollArea(area);
    m_scroll->setObjectName(QStringLiteral("UninstallScroll"));
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A fixed viewport width: a bar that comes and goes would move every row once more.
    m_scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_scroll->setStyleSheet(QStringLiteral("QScrollArea { background:#f0f7ff; border:none; }"));
    grid->addWidget(m_scroll, 0, 0);

    m_emptyLabel = new QLabel(tr("Click Refresh to scan installed programs."), area);
    m_emptyLabel->setObjectName(QStringLiteral("UninstallEmptyLabel"));
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setStyleSheet(QStringLiteral("font-size:13px; color:#94a3b8; background:transparent;"));
    grid->addWidget(m_emptyLabel, 0, 0);

    m_overlay = new QWidget(area);
    m_overlay->setObjectName(QStringLiteral("UninstallOverlay"));
    m_overlay->setAttribute(Qt::WA_StyledBackground);
    m_overlay->setStyleSheet(QStringLiteral("QWidget#UninstallOverlay { background:rgba(248,250,255,0.96); }"
                                            "QProgressBar { background:#dbeafe; border:none; border-radius:2px; }"
                                            "QProgressBar::chunk { background:#2563eb; border-radius:2px; }"));
    auto* overlayLayout = new QVBoxLayout(m_overlay);
    overlayLayout->setSpacing(12);
    overlayLayout->addStretch();
    auto* icon = label(QStringLiteral("🔍"), QStringLiteral("font-size:40px; background:transparent;"), m_overlay);
    icon->setAlignment(Qt::AlignCenter);
    overlayLayout->addWidget(icon);
    auto* title = label(tr("Scanning installed programs..."),
        QStringLiteral("font-size:14px; font-weight:600; color:#1e40af; background:transparent;"), m_overlay);
    title->setAlignment(Qt::AlignCenter);
    overlayLayout->addWidget(title);
    auto* busy = new QProgressBar(m_overlay);
    busy->setRange(0, 0);
    busy->setFixedSize(220, 4);
    busy->setTextVisible(false);
    overlayLayout->addWidget(busy, 0, Qt::AlignHCenter);
    auto* hint = label(tr("Reading registry entries, please wait..."),
        QStringLiteral("font-size:12px; color:#64748b; background:transparent;"), m_overlay);
    hint->setAlignment(Qt::AlignCenter);
    overlayLayout->addWidget(hint);
    overlayLayout->addStretch();
    m_overlay->hide();
    grid->addWidget(m_overlay, 0, 0);
    return area;
}

QWidget* UninstallPage::createBottomBar()
{
    auto* bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("BottomBar"));
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->setFixedHeight(56);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(24, 0, 24, 0);
    layout->setSpacing(12);

    m_statLabel = new QLabel(bar);
    m_statLabel->setObjectName(QStringLiteral("BarStatLabel"));
    m_statLabel->setTextFormat(Qt::RichText);
    layout->addWidget(m_statLabel);

    m_statusLabel = new QLabel(bar);
    m_statusLabel->setObjectName(QStringLiteral("UninstallStatusLabel"));
    m_statusLabel->setTextFormat(Qt::RichText);
    m_statusLabel->setStyleSheet(QStringLiteral("font-size:12px; color:#475569;"));
    m_statusLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    connect(m_statusLabel, &QLabel::linkActivated, this, &UninstallPage::onStatusLinkActivated);
    layout->addWidget(m_statusLabel, 1);

    m_cleanResiduesButton = new QPushButton(tr("✦ Clean Residues"), bar);
    m_cleanResiduesButton->setObjectName(QStringLiteral("BtnGhost"));
    m_cleanResiduesButton->setCursor(Qt::PointingHandCursor);
    connect(m_cleanResiduesButton, &QPushButton::clicked, this, &UninstallPage::onCleanResiduesClicked);
    layout->addWidget(m_cleanResiduesButton);

    m_uninstallSelectedButton = new QPushButton(tr("Uninstall Selected"), bar);
    m_uninstallSelectedButton->setObjectName(QStringLiteral("UninstallSelectedButton"));
    m_uninstallSelectedButton->setCursor(Qt::PointingHandCursor);
    m_uninstallSelectedButton->setStyleSheet(QString::fromLatin1(UninstallSelectedStyle));
    connect(m_uninstallSelectedButton, &QPushButton::clicked, this, &UninstallPage::onBatchUninstall);
    layout->addWidget(m_uninstallSelectedButton);
    return bar;
}

void UninstallPage::startFirstLoad()
{
    onRefreshClicked();
}

void UninstallPage::onRefreshClicked()
{
    if (m_manager->isRefreshing() || m_batchRunning)
        return;
    setRefreshing(true);
    m_manager->refresh();
}

void UninstallPage::setRefreshing(bool refreshing)
{
    m_overlay->setVisible(refreshing);
    if (refreshing)
        m_overlay->raise();
    m_refreshButton->setText(refreshing ? tr("Scanning...") : tr("↺ Refresh"));
    m_refreshButton->setEnabled(!refreshing && !m_batchRunning);
}

void UninstallPage::onRefreshFinished()
{
    setRefreshing(false);
    showApps(m_manager->apps());
}

void UninstallPage::showApps(const QList<InstalledApp>& apps)
{
    m_hasInventory = true;
    m_entries.clear();
    m_entries.reserve(apps.size());
    for (const InstalledApp& app : apps)
        m_entries.append({ app, false });
    updateCounters();
    rebuildRows();
}

QList<InstalledApp> UninstallPage::listedApps() const
{
    QList<InstalledApp> list;
    list.reserve(m_entries.size());
    for (const Entry& e : m_entries)
        list << e.app;
    return list;
}

void UninstallPage::updateCounters()
{
    const auto unused = std::count_if(m_entries.cbegin(), m_entries.cend(),
        [](const Entry& e) { return e.app.status == QLatin1String(FilterUnused); });
    m_appsCount->setText(QString::number(m_entries.size()));
    m_unusedCount->setText(QString::number(unused));
}

void UninstallPage::rebuildRows()
{
    const auto order = [this](const Entry& a, const Entry& b) {
        switch (m_sort) {
        case ByDate:
            return a.app.installDate > b.app.installDate;
        case ByName:
            return a.app.name < b.app.name;
        default:
            return a.app.estimatedSize > b.app.estimatedSize;
        }
    };
    std::stable_sort(m_entries.begin(), m_entries.end(), order);

    // A fresh list widget replaces the old one in one step. The old one is hidden first: rows
    // deleted from a shown list each repaint their neighbours' area.
    if (QWidget* old = m_scroll->takeWidget())
        delete old;
    auto* list = new RowList;
    list->setCursor(Qt::PointingHandCursor);
    list->setObjectName(QStringLiteral("UninstallList"));
    // A palette rather than a style sheet: a sheet here would be matched against every row.
    list->setAutoFillBackground(true);
    QPalette palette = list->palette();
    palette.setColor(QPalette::Window, QColor(0xf0, 0xf7, 0xff));
    list->setPalette(palette);
    m_rows.clear();
    m_rows.reserve(m_entries.size());
    for (int i = 0; i < m_entries.size(); ++i) {
        auto* row = new UninstallRowWidget(m_entries.at(i).app, list);
        row->setSelected(m_entries.at(i).selected);
        connect(row, &UninstallRowWidget::selectionChanged, this, [this, i](bool selected) {
            m_entries[i].selected = selected;
            updateBottomBar();
        });
        connect(row, &UninstallRowWidget::uninstallRequested, this, &UninstallPage::onUninstallRequested);
        m_rows << row;
    }
    list->setRows(m_rows);
    // Placed while the list is still hidden, at the width it will have: moving a thousand shown
    // rows costs far more than placing hidden ones.
    list->resize(m_scroll->viewport()->width(), list->height());
    applyFilter();
    m_scroll->setWidget(list);
}

void UninstallPage::applyFilter()
{
    for (UninstallRowWidget* row : std::as_const(m_rows)) {
        const InstalledApp& app = row->app();
        const bool byFilter = m_filterKey.isEmpty() || app.status == m_filterKey;
        const bool bySearch = m_search.isEmpty() || app.name.contains(m_search, Qt::CaseInsensitive)
            || app.publisher.contains(m_search, Qt::CaseInsensitive);
        const bool keep = byFilter && bySearch;
        if (keep == isFilteredOut(row))
            row->setVisible(keep);
    }
    if (!m_rows.isEmpty())
        static_cast<RowList*>(m_rows.constFirst()->parentWidget())->relayout();
    m_emptyLabel->setVisible(!m_hasInventory);
    updateBottomBar();
}

void UninstallPage::updateBottomBar()
{
    int shown = 0;
    int selected = 0;
    qint64 bytes = 0;
    for (int i = 0; i < m_rows.size(); ++i) {
        // Hidden rows stay ticked but do not count: nothing is uninstalled that is not in view.
        if (isFilteredOut(m_rows.at(i)))
            continue;
        ++shown;
        if (m_rows.at(i)->isSelected()) {
            ++selected;
            bytes += m_rows.at(i)->app().estimatedSize;
        }
    }
    if (selected == 0) {
        m_statLabel->setText(tr("<b>%1</b> programs").arg(shown));
    } else {
        m_statLabel->setText(
            tr("Selected <b>%1</b>  ·  Free up <b>%2</b>").arg(selected).arg(UninstallManager::formatSize(bytes)));
    }
    m_uninstallSelectedButton->setEnabled(selected > 0 && !m_batchRunning);
}

void UninstallPage::onSearch(const QString& text)
{
    m_search = text.trimmed();
    applyFilter();
}

void UninstallPage::onSortChanged(int index)
{
    m_sort = (index == ByDate || index == ByName) ? index : BySize;
    rebuildRows();
}

void UninstallPage::onFilterChanged(const QString& key)
{
    m_filterKey = key;
    for (QPushButton* chip : { m_allChip, m_unusedChip }) {
        const bool active = (chip == m_unusedChip) == (key == QLatin1String(FilterUnused));
        chip->setChecked(active);
        chip->setProperty("active", active ? "true" : "false");
        chip->style()->unpolish(chip);
        chip->style()->polish(chip);
    }
    applyFilter();
}

void UninstallPage::onUninstallRequested(const InstalledApp& app)
{
    if (m_batchRunning || m_singleRunning)
        return;
    if (app.status != QLatin1String("nouninstaller") && !app.uninstallString.isEmpty()) {
        QMessageBox question(QMessageBox::Question, tr("Confirm Uninstall"), tr("Uninstall \"%1\"?").arg(app.name),
            QMessageBox::Yes | QMessageBox::No, this);
        // The name is the installer's text, shown as it is, never as markup.
        question.setTextFormat(Qt::PlainText);
        if (question.exec() != QMessageBox::Yes)
            return;
        // Runs here and waits for the uninstaller; the result arrives through onUninstallFinished.
        m_singleRunning = true;
        const bool ok = m_manager->uninstall(app);
        m_singleRunning = false;
        if (ok)
            onRefreshClicked();
        return;
    }

    QMessageBox box(QMessageBox::Warning, tr("No Uninstaller Found"),
        tr("<b>%1</b> does not have a built-in uninstaller.").arg(app.name.toHtmlEscaped()), QMessageBox::NoButton,
        this);
    box.setTextFormat(Qt::RichText);
    box.setInformativeText(
        tr("Use <b>Force Remove</b> to delete the installation folder, registry entries, and associated "
           "files.<br><br><span style='color:#f59e0b; font-size:11px;'>⚠ This cannot be undone.</span>"));
    QPushButton* force = box.addButton(tr("Force Remove…"), QMessageBox::AcceptRole);
    box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.exec();
    if (box.clickedButton() == force)
        openForceRemove(app);
}

void UninstallPage::onUninstallStarted(const QString& name)
{
    m_statusLabel->setText(tr("Uninstalling: %1…").arg(name.toHtmlEscaped()));
}

void UninstallPage::onUninstallFinished(const QString& name, bool ok)
{
    const QString shown = name.toHtmlEscaped();
    if (ok) {
        m_statusLabel->setText(tr("✓ Uninstalled: <b>%1</b>  <a href='clean' "
                                  "style='color:#2563eb;text-decoration:none;font-weight:600;'>Clean residues →</a>")
                                   .arg(shown));
        return;
    }
    m_statusLabel->setText(tr("✗ Failed to uninstall: <b>%1</b>").arg(shown));

    QMessageBox box(QMessageBox::Warning, tr("Uninstall Failed"),
        tr("<b>%1</b> could not be uninstalled using its built-in uninstaller.").arg(shown), QMessageBox::NoButton,
        this);
    box.setTextFormat(Qt::RichText);
    box.setInformativeText(
        tr("<b>Force Remove</b> will:<br>• Kill all running processes<br>• Delete the installation folder<br>• Remove "
           "registry entries<br>• Clean startup items &amp; services<br><br><span style='color:#f59e0b; "
           "font-size:11px;'>⚠ This cannot be undone. Review items carefully before confirming.</span>"));
    QPushButton* force = box.addButton(tr("Force Remove…"), QMessageBox::AcceptRole);
    box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(force);
    box.exec();
    if (box.clickedButton() != force)
        return;
    const auto it
        = std::find_if(m_entries.cbegin(), m_entries.cend(), [&](const Entry& e) { return e.app.name == name; });
    if (it == m_entries.cend()) {
        QMessageBox notFound(QMessageBox::Warning, tr("Not Found"),
            tr("Could not find installation info for <b>%1</b>.<br>Please remove it manually.").arg(shown),
            QMessageBox::Ok, this);
        notFound.setTextFormat(Qt::RichText);
        notFound.exec();
        return;
    }
    openForceRemove(it->app);
}

void UninstallPage::onBatchUninstall()
{
    if (m_batchRunning || m_singleRunning)
        return;
    QList<InstalledApp> selected;
    for (const UninstallRowWidget* row : std::as_const(m_rows)) {
        if (!isFilteredOut(row) && row->isSelected())
            selected << row->app();
    }
    if (selected.isEmpty())
        return;
    const auto answer = QMessageBox::question(this, tr("Batch Uninstall"),
        tr("Uninstall %1 selected apps?\nThis cannot be undone.").arg(selected.size()),
        QMessageBox::Yes | QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    setBatchRunning(true);
    m_manager->uninstallBatch(selected);
}

void UninstallPage::setBatchRunning(bool running)
{
    m_batchRunning = running;
    // The history and the list belong to the batch until it ends.
    m_cleanResiduesButton->setEnabled(!running);
    m_refreshButton->setEnabled(!running && !m_manager->isRefreshing());
    updateBottomBar();
}

void UninstallPage::onBatchFinished()
{
    setBatchRunning(false);
    onRefreshClicked();
}

void UninstallPage::onCleanResiduesClicked()
{
    if (m_batchRunning)
        return;
    const QList<UninstalledApp> history = m_manager->history();
    if (!history.isEmpty()) {
        ResidueDialog dialog(history, this);
        dialog.exec();
        return;
    }
    ResidueDialog dialog(listedApps(), this);
    dialog.exec();
}

void UninstallPage::onStatusLinkActivated(const QString& link)
{
    if (link == QLatin1String("clean") && !m_batchRunning)
        openResidueDialogForHistory();
}

void UninstallPage::openResidueDialogForHistory()
{
    const QList<UninstalledApp> history = m_manager->history();
    if (history.isEmpty())
        return;
    ResidueDialog dialog(history, this);
    dialog.exec();
}

void UninstallPage::openForceRemove(const InstalledApp& app)
{
    // The dialog deletes itself once closed; exec() keeps it alive until it returns.
    auto* dialog = new ForceRemoveDialog(app, this);
    if (dialog->exec() == QDialog::Accepted)
        onRefreshClicked(); // the program is gone: the list should say so
}
