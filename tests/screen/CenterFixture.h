#pragma once

#include "ScreenFixture.h"
#include "keys/pictures.h"
#include "screen/RightTracker.h"

#include <QGraphicsTextItem>
#include <QListWidget>

/// What the tests of the scenes share: which scene is asked for, and what shows, in words.
class CenterFixture : public ScreenFixture
{
protected:
    enum Setter { fresh, to_default, to_clean, to_ports, to_credits, to_library };
    static constexpr int setters = 5;

    const Ui_SorvaneClass& form() const { return window->ui; }
    QGraphicsScene& centre() const { return *form().centerGraphicsView->scene(); }
    QWidget* inView() const { return form().inKeyboardGraphicsView; }
    QList<QPushButton*> leftButtons() const
    {
        return {form().buttonMIDIinOut, form().buttonCredits, form().buttonManual};
    }
    QList<QPushButton*> rightButtons() const
    {
        return {form().buttonExport, form().buttonImport, form().buttonReset};
    }
    QList<QPushButton*> sixButtons() const { return leftButtons() + rightButtons(); }

    static const char* nameOf(int setter)
    {
        static const char* const names[] = {"fresh", "default", "clean", "ports", "credits", "library"};
        return names[setter];
    }
    /// Nothing for `fresh`.
    void call(int setter) const
    {
        switch (setter) {
        case to_default:
            return screen().setSceneDefault();
        case to_clean:
            return screen().setSceneClean();
        case to_ports:
            return screen().setSceneMIDIinOut();
        case to_credits:
            return screen().setSceneCredits();
        case to_library:
            return screen().setSceneLibrary();
        default:
            return;
        }
    }

    QGraphicsPixmapItem* portPicture() const
    {
        const auto key =
            pictures::load(QStringLiteral(":/Resources/MidiIoScreen/MIDI_IO_portBG.png")).cacheKey();
        for (QGraphicsItem* item : centre().items())
            if (auto* found = qgraphicsitem_cast<QGraphicsPixmapItem*>(item))
                if (found->pixmap().cacheKey() == key)
                    return found;
        return nullptr;
    }
    /// The lines of the credits that stand in the scene.
    QList<QGraphicsTextItem*> creditsInScene() const
    {
        QList<QGraphicsTextItem*> found;
        for (QGraphicsItem* item : centre().items())
            if (auto* text = qgraphicsitem_cast<QGraphicsTextItem*>(item))
                found.append(text);
        return found;
    }

    /// What shows, in words; a group that shows in part has a question mark.
    QString look() const
    {
        const auto shown = [this](const QWidget* widget) { return widget->isVisibleTo(window.get()); };
        QStringList words;
        const auto add = [&words](const char* name, const QList<bool>& parts) {
            if (parts.contains(true))
                words << QLatin1String(name) + (parts.contains(false) ? "?" : "");
        };
        add("ports", {portPicture()->isVisible(), shown(screen().inPortList), shown(screen().outPortList)});
        add("library", {view().background->isVisible(), shown(view().categories), shown(view().scales),
                        shown(view().description), shown(view().tracker), screen().libraryOpen});
        add("version", {shown(form().versionLabel)});
        add("texts", {shown(form().centerLogo), shown(form().about)});
        add("left", {shown(form().buttonMIDIinOut), shown(form().buttonCredits), shown(form().buttonManual)});
        add("right", {shown(form().buttonExport), shown(form().buttonImport), shown(form().buttonReset)});
        add("layer", {shown(form().hiddenLayer)});
        add("lines", {!screen().creditItems.isEmpty(), screen().creditTimer->isActive()});
        return words.join(QLatin1Char(' '));
    }
    /// Which of the two checkable buttons is down: "", "ports", "credits", "ports credits".
    QString checks() const
    {
        QStringList down;
        if (form().buttonMIDIinOut->isChecked())
            down << QStringLiteral("ports");
        if (form().buttonCredits->isChecked())
            down << QStringLiteral("credits");
        return down.join(QLatin1Char(' '));
    }
    void check(bool ports, bool credits) const
    {
        form().buttonMIDIinOut->setChecked(ports);
        form().buttonCredits->setChecked(credits);
    }

    /// Clicks a place of the window as a window system does.
    void clickAt(QPoint place) const
    {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    }
    void clickOn(const QWidget* widget) const
    {
        clickAt(widget->mapTo(window.get(), widget->rect().center()));
    }
    /// A place of the form, in the window.
    QPoint ofForm(int x, int y) const { return {x + (window->width() - 677) / 2, y}; }
    /// What a click at a place of the window goes to: the name of a child of the window, "" for none.
    QString hitAt(QPoint place) const
    {
        const QWidget* hit = window->childAt(place);
        while (hit && hit->parentWidget() != window.get())
            hit = hit->parentWidget();
        return hit ? hit->objectName() : QString();
    }
};
