#pragma once

#include "forceremoveitem.h"

#include <QWidget>

class QCheckBox;

// One force-remove target in the dialog's list: check box, kind icon, label with badges, size.
class ForceRemoveRowWidget final : public QWidget {
    Q_OBJECT
public:
    explicit ForceRemoveRowWidget(const ForceRemoveItem& item, QWidget* parent = nullptr);

    QCheckBox* checkBox() const { return m_check; }
    bool isChecked() const;

    struct KindStyle {
        QString icon;
        QString iconBackground;
        QString badge; // empty: no badge
        QString badgeBackground;
        QString badgeText;
    };
    static KindStyle kindStyle(ForceRemoveKind kind);
    // The label as the row shows it: whole up to 60 characters, else cut to 57 and "...".
    static QString shortLabel(const QString& label);
    // The size label's colour for a size.
    static QString sizeColor(qint64 bytes);
    // The size text the dialog and its rows share: whole KB, MB without decimals from 1 MiB, GB
    // with one decimal from 1 GiB, and "0 KB" for nothing at all.
    static QString formatSize(qint64 bytes);

private:
    QCheckBox* m_check = nullptr;
};
