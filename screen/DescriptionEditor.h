#pragma once

#include <QTextBrowser>

/// The page of a scale. It is edited in a dialog, which a press asks for.
class DescriptionEditor : public QTextBrowser
{
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;

signals:
    void pressed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
};
