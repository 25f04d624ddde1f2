#pragma once

#include "residueitem.h"

#include <QWidget>

class QCheckBox;

// One result of the residue scan: its tick, category, name, path, badges and size.
class ResidueRowWidget final : public QWidget {
    Q_OBJECT
public:
    explicit ResidueRowWidget(const ResidueItem& item, QWidget* parent = nullptr);

    const ResidueItem& item() const { return m_item; }
    bool isChecked() const;
    void setChecked(bool checked);

    static QString categoryLabel(int category);
    static QString categoryIcon(int category);
    static QString sizeColor(qint64 bytes);

private:
    ResidueItem m_item;
    QCheckBox* m_check = nullptr;
};
