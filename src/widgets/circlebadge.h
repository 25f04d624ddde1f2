#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

// A translucent white disc with a thin white rim showing a picture or a short bold text; made
// for the dashboard's blue hero card. The owner sets the fixed size.
class CircleBadge final : public QWidget {
    Q_OBJECT
public:
    explicit CircleBadge(QWidget* parent = nullptr);

    void setText(const QString& text);
    void setPixmap(const QPixmap& pixmap);
    void setFillAlpha(int alpha);
    void setBorderAlpha(int alpha);
    void setTextPixelSize(int size);
    void setTextAlpha(int alpha);
    void setBold(bool bold);

    QString text() const { return m_text; }
    QPixmap pixmap() const { return m_pixmap; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    QPixmap m_pixmap;
    int m_fillAlpha = 38;
    int m_borderAlpha = 64;
    int m_textPixelSize = 20;
    int m_textAlpha = 255;
    bool m_bold = true;
};
