#pragma once

#include "RecordingPort.h"
#include "app/MainWnd.h"
#include "header_records.h"
#include "headers/AnchorsGroup.h"
#include "headers/DiagramScene.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"

#include <QtTest>

#include <functional>
#include <memory>

class AlertWidget;
class QMenu;

/// A fresh window with a recording port for each test of the headers. A test class that needs more to begin
/// with has an init() of its own, which calls openWindow().
class HeaderFixture : public QObject
{
    Q_OBJECT

private slots:
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

protected:
    static constexpr bool on = true, off = false; // the switches of a record

    void openWindow();
    void closeWindow();

    // What stands in the window; headers are named by their black key
    HeaderController& presets() const { return *window->headerController; }
    HeaderItem* header(int key) const { return presets().findHeader(key); }
    header_data& record(int key) const { return header(key)->record; }
    int active() const { return key_roles::pitch(presets().activeHeader); }
    PowerItem* power() const { return window->powerItem; }
    DiagramScene* scene() const;
    AnchorsGroup* anchors() const { return power()->anchorsGroup; }
    DatabaseLibrary& library() const { return window->library; }
    TonicKeyController& tonic() const { return *static_cast<TonicKeyController*>(window->tonicController); }
    ScaleKeyController& scale() const { return *static_cast<ScaleKeyController*>(window->scaleController); }
    ResizableItem* in(int note) const { return window->findInNote(note); }
    ResizableItem* out(int note) const { return static_cast<ResizableItem*>(in(note)->pairedOutKey); }
    int target(int note) const { return key_roles::target(window->findInNote(note)); }
    /// Everything that a preset or a selector may change.
    QStringList state() const;
    /// The library's labels of a word.
    QStringList abbreviations(const QString& word) const;

    // What a test does to it
    void recall(int key, bool store = true) const { presets().setActiveHeader(header(key), store); }
    void openMenuOn(int key) const { presets().contextHeader = header(key); }
    void setTonic(const char* name) const;
    void setScale(const QString& word) const;
    /// Writes a record and brings its names up to date.
    void setRecord(int key, const header_data& data) const;
    /// Takes the factory's presets away, and the numbers that two of them carry.
    void emptyHeaders() const;
    void placeAnchors(qreal x) const;

    // The pointer
    void show() const;
    QPoint placeOf(int key) const;

    // Menus and questions: each runs `look` once the widget is up and closes what that leaves open
    void whenAsked(const std::function<void(AlertWidget&)>& look);
    /// Clicks the accepting or the cancelling button of the question when it comes.
    void answer(bool accepting);
    void whenMenuIsUp(const std::function<void(QMenu&)>& look);

    std::unique_ptr<MainWnd> window;
    RecordingPort* port = nullptr; // owned by the window
    int seen = 0;                  // menus and questions

private:
    template <typename Widget>
    void whenUp(const std::function<Widget*()>& find, const std::function<void(Widget&)>& look);
};
