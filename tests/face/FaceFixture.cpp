#include "FaceFixture.h"

#include "app/vendor.h"
#include "app/version.h"
#include "screen/AddWindow.h"
#include "screen/AlertWidget.h"
#include "screen/ChangeDialog.h"
#include "screen/EditWindow.h"
#include "screen/PortListWidget.h"

#include <QSignalBlocker>

namespace {

const QStringList dialogKinds{QStringLiteral("alert"), QStringLiteral("change"), QStringLiteral("add"),
                              QStringLiteral("edit")};

/// What the program writes there at its start.
QString versionLine()
{
    return QStringLiteral("Sorvane %1, <a style=\"color: #575450\" href=\"%2\">%2</a>")
        .arg(QString::fromLatin1(sorvaneVersion), QString::fromLatin1(vendor::site));
}

} // namespace

QStringList FaceFixture::states()
{
    return QStringList{QStringLiteral("off"),   QStringLiteral("on"),      QStringLiteral("clean"),
                       QStringLiteral("ports"), QStringLiteral("credits"), QStringLiteral("library")} +
           dialogKinds;
}

void FaceFixture::addStates()
{
    QTest::addColumn<QString>("state");
    const QStringList all = states();
    for (const QString& state : all)
        QTest::newRow(qPrintable(state)) << state;
}

void FaceFixture::addStatesAndWidths()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("width");
    const QStringList all = states();
    for (const QString& state : all)
        for (const int width : widths)
            QTest::addRow("%s at %d", qPrintable(state), width) << state << width;
}

void FaceFixture::addButtonLooks()
{
    QTest::addColumn<QString>("how");
    for (const char* how : {"neutral", "hover", "pressed", "checked", "focused"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void FaceFixture::show(QPushButton& button, const QString& how)
{
    button.setAttribute(Qt::WA_UnderMouse, how == QLatin1String("hover"));
    button.setDown(how == QLatin1String("pressed"));
    button.setChecked(how == QLatin1String("checked") && button.isCheckable());
    if (how == QLatin1String("focused"))
        button.setFocus(Qt::TabFocusReason);
}

void FaceFixture::enter(const QString& state)
{
    form().versionLabel->setText(versionLine());
    window->setPower(state != QLatin1String("off"));
    if (state == QLatin1String("clean"))
        screen().setSceneClean();
    else if (state == QLatin1String("credits"))
        window->showScene(CenterScreen::scene_credits);
    else if (state == QLatin1String("library"))
        window->showLibraryScreen(true);
    else if (state == QLatin1String("ports"))
        window->showScene(CenterScreen::scene_ports);
    if (state == QLatin1String("ports"))
        fillPorts({QStringLiteral("Sorvane MIDI"), QStringLiteral("Stage Piano 88:1"),
                   QStringLiteral("Pads:Pads Port 1"), QStringLiteral("Synth:in"), QStringLiteral("Loop A"),
                   QStringLiteral("Loop B"), QStringLiteral("Loop C")});
    if (dialogKinds.contains(state)) {
        dialog = makeDialog(state);
        dialog->show();
    }
    QCoreApplication::sendPostedEvents();
}

void FaceFixture::fillPorts(const QStringList& names) const
{
    for (QListWidget* list : {screen().inPortList, screen().outPortList}) {
        const QSignalBlocker blocker(list); // nothing shall be opened
        for (const QString& name : names)
            static_cast<PortListWidget*>(list)->addRow(name);
        list->item(list->count() - names.size())->setSelected(true);
    }
}

std::unique_ptr<AbstractDialog> FaceFixture::makeDialog(const QString& kind) const
{
    if (kind == QLatin1String("alert"))
        return std::make_unique<AlertWidget>(
            QString(),
            QStringLiteral("<h4>Are you sure you want to permanently erase the settings in all "
                           "Headers?</h4><h6>You can't undo this operation.</h6>"),
            QStringLiteral("Erase All"), QStringLiteral("Cancel"), alert_warning, window.get());
    if (kind == QLatin1String("change")) {
        auto change = std::make_unique<ChangeDialog>(window.get());
        change->setText(QStringLiteral("Category"));
        return change;
    }
    if (kind == QLatin1String("edit")) {
        auto edit = std::make_unique<EditWindow>(1, window.get());
        edit->setName(QStringLiteral("Ionian"));
        return edit;
    }
    auto add = std::make_unique<AddWindow>(1, window.get());
    add->setName(QStringLiteral("Mine"));
    add->setCategoryList({QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Third")});
    return add;
}
