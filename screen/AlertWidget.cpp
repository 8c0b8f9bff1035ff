#include "screen/AlertWidget.h"

#include <QGridLayout>
#include <QTextDocumentFragment>

namespace {

const QSize boxSize(428, 215);
const QMargins boxMargins(33, 25, 25, 25);

} // namespace

AlertWidget::AlertWidget(const QString& title, const QString& text, const QString& okText,
                         const QString& cancelText, alert_type type, QWidget* parent)
    : AbstractDialog(parent), box(new AlertMessageBoxWidget(title, text, okText, cancelText, type, this))
{
    box->setFixedSize(boxSize);
    box->setContentsMargins(boxMargins);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(box, 0, 0, Qt::AlignCenter);
    setPanel(box);
    setAccessibleName(title);
    setAccessibleDescription(QTextDocumentFragment::fromHtml(text).toPlainText());
    connect(box, &AlertMessageBoxWidget::sgOk, this, &AlertWidget::accept);
    connect(box, &AlertMessageBoxWidget::sgCancel, this, &AlertWidget::reject);
}

void AlertWidget::accept()
{
    const QPointer<QLayout> grid(layout());
    AbstractDialog::accept();
    if (grid)
        grid->deleteLater();
}

void AlertWidget::reject()
{
    const QPointer<QLayout> grid(layout());
    AbstractDialog::reject();
    if (grid)
        grid->deleteLater();
}
