#include "screen/EditWindow.h"

#include "screen/ScaleFields.h"

#include <QLineEdit>
#include <QTextEdit>

EditWindow::EditWindow(int field, QWidget* parent)
    : AbstractDialog(parent), form(new ScaleFields(ScaleFields::Asks::withoutCategory, this))
{
    setAccessibleName(tr("Names and description of the scale"));
    setPanel(form, QStringLiteral(":/Resources/Background/editionWindow_background.png"), QSize(428, 296));
    for (QWidget* widget : form->fields())
        addField(widget);
    setFirstFocus(form->field(field));
    connect(form, &ScaleFields::saved, this, &EditWindow::accept);
    connect(form, &ScaleFields::cancelled, this, &EditWindow::reject);
}

void EditWindow::accept()
{
    if (form->isNamed())
        AbstractDialog::accept();
}

QString EditWindow::name() const
{
    return form->title->text();
}

QString EditWindow::abbr1() const
{
    return form->abbr1->text();
}

QString EditWindow::abbr2() const
{
    return form->abbr2->text();
}

QString EditWindow::description() const
{
    return form->description->toPlainText();
}

void EditWindow::setName(const QString& text)
{
    form->title->setText(text);
}

void EditWindow::setAbbr1(const QString& text)
{
    form->keepAbbr1(text);
}

void EditWindow::setAbbr2(const QString& text)
{
    form->keepAbbr2(text);
}

void EditWindow::setDescription(const QString& text)
{
    form->description->setPlainText(text);
}
