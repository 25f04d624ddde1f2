#pragma once

#include <QWidget>

class QPropertyAnimation;

// A small animated on/off switch: a rounded blue track with a white thumb that slides on a press.
class ToggleSwitch final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(float thumbX READ thumbX WRITE setThumbX)
public:
    explicit ToggleSwitch(QWidget* parent = nullptr);

    bool isChecked() const { return m_checked; }
    float thumbX() const { return m_thumbX; }
    void setThumbX(float x);

    QSize sizeHint() const override;

signals:
    void toggled(bool checked);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_checked = false;
    float m_thumbX = 3.0f;
    QPropertyAnimation* m_animation = nullptr;
};
