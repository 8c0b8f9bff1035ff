#include "screen/ChangeDialog.h"

#include "app/MainWnd.h"
#include "screen/dialog_panel.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QSize panelSize(428, 215);
constexpr int rowSpacing = 8;

} // namespace

struct ChangeDialog::Widgets
{
    QWidget* panel;
    QLabel* label;
    QLineEdit* edit;
    QPushButton* ok;
    QPushButton* cancel;
};

ChangeDialog::ChangeDialog(MainWnd* window) : AbstractDialog(window), widgets(makeWidgets(this))
{
    initialize();
}

ChangeDialog::~ChangeDialog() = default;

std::unique_ptr<ChangeDialog::Widgets> ChangeDialog::makeWidgets(QWidget* parent)
{
    auto* panel = new QWidget(parent);
    return std::make_unique<Widgets>(Widgets{panel, new QLabel(panel), new QLineEdit(panel),
                                             new QPushButton(tr("Ok"), panel),
                                             new QPushButton(tr("Cancel"), panel)});
}

void ChangeDialog::initialize()
{
    setPanel(widgets->panel, QStringLiteral(":/Resources/Background/message_background.png"), panelSize);
    widgets->label->setWordWrap(true);
    widgets->edit->setObjectName(QStringLiteral("name"));
    widgets->edit->setFixedHeight(dialog_panel::fieldHeight);
    addField(widgets->edit);
    setFirstFocus(widgets->edit);
    widgets->edit->setFocus();
    dialog_panel::dressButton(*widgets->ok, QStringLiteral("okButton"));
    dialog_panel::dressButton(*widgets->cancel, QStringLiteral("cancelButton"));
    connect(widgets->ok, &QPushButton::clicked, this, &ChangeDialog::accept);
    connect(widgets->cancel, &QPushButton::clicked, this, &ChangeDialog::reject);
    layOut();
}

void ChangeDialog::layOut()
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(dialog_panel::buttonSpacing);
    buttons->addStretch();
    buttons->addWidget(widgets->cancel);
    buttons->addWidget(widgets->ok);
    auto* column = new QVBoxLayout(widgets->panel);
    column->setContentsMargins(dialog_panel::margins);
    column->setSpacing(rowSpacing);
    column->addStretch();
    column->addWidget(widgets->label);
    column->addWidget(widgets->edit);
    column->addStretch();
    column->addLayout(buttons);
}

void ChangeDialog::setText(const QString& text)
{
    widgets->edit->setText(text);
}

QString ChangeDialog::text() const
{
    return widgets->edit->text();
}

void ChangeDialog::setLabel(const QString& label)
{
    widgets->label->setText(label);
    widgets->edit->setAccessibleName(label);
}

QString ChangeDialog::label() const
{
    return widgets->label->text();
}

void ChangeDialog::setOkButtonTitle(const QString& title)
{
    widgets->ok->setText(title);
}
