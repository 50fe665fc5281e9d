// The picture of the card in the editor: it can be clicked, and picture files can be dropped on it.
#pragma once

#include <QAbstractButton>

class PictureBox : public QAbstractButton {
    Q_OBJECT
public:
    PictureBox();

    QSize sizeHint() const override;

Q_SIGNALS:
    void fileDropped(const QString& path);

protected:
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};
