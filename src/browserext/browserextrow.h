#pragma once

#include "browserext.h"

#include <QWidget>

class QCheckBox;

// One extension in a browser group: a tick for batch removal, its icon (or an initial-letter
// avatar), name, version, description, a badge when it is disabled, and its own remove button.
class BrowserExtRow final : public QWidget {
    Q_OBJECT
public:
    explicit BrowserExtRow(const BrowserExt& ext, QWidget* parent = nullptr);

    const BrowserExt& extension() const { return m_ext; }
    bool isSelected() const;
    void setSelected(bool selected);
    // Whether the search text finds this extension (name, description or ID, ignoring case).
    bool matches(const QString& text) const;

signals:
    void selectionChanged(bool selected);
    void removeRequested(const BrowserExt& ext);

private:
    QWidget* createAvatar();

    BrowserExt m_ext;
    QCheckBox* m_check = nullptr;
};
