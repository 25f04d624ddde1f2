#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

// A percentage as a coloured arc on a grey ring, with the number, a label and a detail line
// in the middle. The arc turns amber from 66 and red from 86.
class RingGauge final : public QWidget {
    Q_OBJECT
public:
    explicit RingGauge(const QString& label, const QColor& color, QWidget* parent = nullptr);

    // The owner repaints after setting these.
    void setValue(int value);
    void setDetail(const QString& detail);

    int value() const { return m_value; }
    QString label() const { return m_label; }
    QString detail() const { return m_detail; }
    // The arc colour the current value is drawn in.
    QColor arcColor() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_value = 0;
    QString m_label;
    QString m_detail;
    QColor m_color;
};
