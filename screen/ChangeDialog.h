#pragma once

#include "screen/AbstractDialog.h"

/// Asks for one name. The edit comes up with all its text selected.
class ChangeDialog : public AbstractDialog
{
    Q_OBJECT

public:
    explicit ChangeDialog(MainWnd* window);
    ~ChangeDialog() override;

    void setText(const QString& text);
    [[nodiscard]] QString text() const;
    void setLabel(const QString& label);
    [[nodiscard]] QString label() const;
    void setOkButtonTitle(const QString& title);

private:
    struct Widgets;
    [[nodiscard]] static std::unique_ptr<Widgets> makeWidgets(QWidget* parent);
    void initialize();
    void layOut();

    const std::unique_ptr<Widgets> widgets;
};
