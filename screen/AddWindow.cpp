#include "screen/AddWindow.h"

#include "screen/ScaleFields.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTextEdit>

AddWindow::AddWindow(int field, QWidget* parent)
    : AbstractDialog(parent), form(new ScaleFields(ScaleFields::Asks::withCategory, this))
{
    setAccessibleName(tr("New scale"));
    setPanel(form, QStringLiteral(":/Resources/Background/addWindow_background.png"), QSize(428, 330));
    for (QWidget* widget : form->fields())
        addField(widget);
    setFirstFocus(form->field(field));
    connect(form, &ScaleFields::saved, this, &AddWindow::accept);
    connect(form, &ScaleFields::cancelled, this, &AddWindow::reject);
}

void AddWindow::accept()
{
    if (form->isNamed() && !category().isEmpty() && !form->hasError())
        AbstractDialog::accept();
}

QString AddWindow::findRightAbbrText(const QString& text)
{
    return ScaleFields::findRightAbbrText(text);
}

QString AddWindow::name() const
{
    return form->title->text();
}

QString AddWindow::abbr1() const
{
    return form->abbr1->text();
}

QString AddWindow::abbr2() const
{
    return form->abbr2->text();
}

QString AddWindow::category() const
{
    return form->category->currentText();
}

QString AddWindow::description() const
{
    return form->description->toPlainText();
}

void AddWindow::setName(const QString& text)
{
    form->title->setText(text);
}

void AddWindow::setAbbr1(const QString& text)
{
    form->setAbbr1(text);
}

void AddWindow::setAbbr2(const QString& text)
{
    form->setAbbr2(text);
}

void AddWindow::setDescription(const QString& text)
{
    form->description->setPlainText(text);
}

void AddWindow::setCurrentCategory(const QString& category)
{
    form->setCurrentCategory(category);
}

void AddWindow::setCategoryList(const QStringList& categories)
{
    form->setCategoryList(categories);
}
