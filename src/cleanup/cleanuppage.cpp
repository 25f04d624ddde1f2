#include "cleanuppage.h"

#include <QLabel>
#include <QVBoxLayout>

CleanupPage::CleanupPage(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    auto* label = new QLabel(tr("This page is not built yet."), this);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("color: #94a3b8; font-size: 14px;"));
    layout->addWidget(label);
}

