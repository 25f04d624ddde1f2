#pragma once

#include "browserext.h"

#include <QList>
#include <QWidget>

class BrowserExtRow;
class QLabel;

// The extensions of one browser under a header with the browser's mark, name, count and an arrow;
// a click on the header folds the rows away or shows them again.
class BrowserGroupWidget final : public QWidget {
    Q_OBJECT
public:
    explicit BrowserGroupWidget(const QString& browser, QWidget* parent = nullptr);

    // The browser's mark and colour; "●" in grey for a browser without its own.
    static QString markFor(const QString& browser);
    static QString colourFor(const QString& browser);

    const QString& browser() const { return m_browser; }
    BrowserExtRow* addExtension(const BrowserExt& ext);
    const QList<BrowserExtRow*>& rows() const { return m_rows; }
    bool isCollapsed() const { return m_collapsed; }

    // Shows the rows that match and hides the others (the whole group when none is left).
    // Returns how many are shown.
    int applyFilter(const QString& text);

signals:
    void selectionChanged();

public slots:
    void onHeaderClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void updateHeader();

    QString m_browser;
    QList<BrowserExtRow*> m_rows;
    QWidget* m_header = nullptr;
    QWidget* m_body = nullptr;
    QLabel* m_count = nullptr;
    QLabel* m_arrow = nullptr;
    int m_visible = 0;
    bool m_collapsed = false;
};
