#include "browsergroupwidget.h"

#include "browserextpaths.h"
#include "browserextrow.h"

#include <QColor>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {

QString roleFor(const QString& browser)
{
    if (browser == browserext::Chrome)
        return QStringLiteral("chrome");
    if (browser == browserext::Edge)
        return QStringLiteral("edge");
    if (browser == browserext::Firefox)
        return QStringLiteral("firefox");
    return QStringLiteral("other");
}

} // namespace

QString BrowserGroupWidget::markFor(const QString& browser)
{
    if (browser == browserext::Chrome)
        return QStringLiteral("🌐");
    if (browser == browserext::Edge)
        return QStringLiteral("◆");
    if (browser == browserext::Firefox)
        return QStringLiteral("🦊");
    return QStringLiteral("●");
}

QString BrowserGroupWidget::colourFor(const QString& browser)
{
    if (browser == browserext::Chrome)
        return QStringLiteral("#1a73e8");
    if (browser == browserext::Edge)
        return QStringLiteral("#0078d4");
    if (browser == browserext::Firefox)
        return QStringLiteral("#ff7139");
    return QStringLiteral("#64748b");
}

BrowserGroupWidget::BrowserGroupWidget(const QString& browser, QWidget* parent)
    : QWidget(parent)
    , m_browser(browser)
{
    setObjectName(QStringLiteral("BrowserGroup"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(
        QStringLiteral("QWidget#BrowserGroup { background:white; border:1px solid #e2e8f0; border-radius:10px; }"));
    const QString colour = colourFor(browser);
    QColor tint(colour);
    tint.setAlphaF(0.12);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);

    m_header = new QWidget(this);
    m_header->setObjectName(QStringLiteral("groupHeader"));
    m_header->setProperty("role", roleFor(browser));
    m_header->setAttribute(Qt::WA_StyledBackground);
    m_header->setCursor(Qt::PointingHandCursor);
    m_header->setFixedHeight(44);
    m_header->setStyleSheet(QStringLiteral("QWidget#groupHeader { background:transparent; border:none; }"));
    m_header->installEventFilter(this);
    auto* header = new QHBoxLayout(m_header);
    header->setContentsMargins(14, 0, 16, 0);
    header->setSpacing(10);

    auto* mark = new QLabel(markFor(browser), m_header);
    mark->setObjectName(QStringLiteral("BrowserGroupMark"));
    mark->setFixedSize(28, 28);
    mark->setAlignment(Qt::AlignCenter);
    mark->setStyleSheet(QStringLiteral("background:%1; color:%2; border-radius:7px; font-size:15px;")
                            .arg(tint.name(QColor::HexArgb), colour));
    header->addWidget(mark);

    auto* name = new QLabel(browser, m_header);
    name->setObjectName(QStringLiteral("BrowserGroupName"));
    name->setTextFormat(Qt::PlainText);
    name->setStyleSheet(
        QStringLiteral("font-size:14px; font-weight:700; color:%1; background:transparent;").arg(colour));
    header->addWidget(name);

    m_count = new QLabel(m_header);
    m_count->setObjectName(QStringLiteral("BrowserGroupCount"));
    m_count->setStyleSheet(QStringLiteral("font-size:11px; font-weight:600; color:%1; background:%2; "
                                          "border-radius:9px; padding:2px 8px;")
                               .arg(colour, tint.name(QColor::HexArgb)));
    m_count->setFixedHeight(20);
    header->addWidget(m_count, 0, Qt::AlignVCenter);
    header->addStretch();

    m_arrow = new QLabel(m_header);
    m_arrow->setObjectName(QStringLiteral("BrowserGroupArrow"));
    m_arrow->setStyleSheet(QStringLiteral("font-size:11px; color:#94a3b8; background:transparent;"));
    header->addWidget(m_arrow);
    layout->addWidget(m_header);

    m_body = new QWidget(this);
    m_body->setObjectName(QStringLiteral("BrowserGroupBody"));
    auto* body = new QVBoxLayout(m_body);
    body->setContentsMargins(0, 0, 0, 6);
    body->setSpacing(0);
    layout->addWidget(m_body);
    updateHeader();
}

BrowserExtRow* BrowserGroupWidget::addExtension(const BrowserExt& ext)
{
    auto* row = new BrowserExtRow(ext, m_body);
    connect(row, &BrowserExtRow::selectionChanged, this, &BrowserGroupWidget::selectionChanged);
    m_body->layout()->addWidget(row);
    m_rows.append(row);
    ++m_visible;
    updateHeader();
    return row;
}

int BrowserGroupWidget::applyFilter(const QString& text)
{
    m_visible = 0;
    for (BrowserExtRow* row : std::as_const(m_rows)) {
        const bool shown = row->matches(text);
        row->setVisible(shown);
        m_visible += shown ? 1 : 0;
    }
    setVisible(m_visible > 0);
    updateHeader();
    return m_visible;
}

void BrowserGroupWidget::onHeaderClicked()
{
    m_collapsed = !m_collapsed;
    m_body->setVisible(!m_collapsed);
    updateHeader();
}

bool BrowserGroupWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_header && event->type() == QEvent::MouseButtonRelease
        && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        onHeaderClicked();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void BrowserGroupWidget::updateHeader()
{
    m_count->setText(tr("%1 个扩展").arg(m_visible));
    m_arrow->setText(m_collapsed ? QStringLiteral("▶") : QStringLiteral("▼"));
}
