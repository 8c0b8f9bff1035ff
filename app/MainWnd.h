#pragma once

#include "app/ChildPlaces.h"
#include "app/PortKeeper.h"
#include "headers/HeaderItem.h"
#include "keys/FloatingButton.h"
#include "keys/TonicKeyItem.h"
#include "library/DatabaseLibrary.h"
#include "ui_SorvaneClass.h"

#include <QApplication>
#include <QDialog>
#include <QList>
#include <QMap>
#include <QShortcut>

#include <RtMidi.h>

#include <array>
#include <vector>

class CenterScreen;
class DiagramScene;
class HeaderController;
class KeyboardWalk;
class KeyControllerBase;
class PowerItem;
class QListWidgetItem;
class ResizableItem;
class TonicScene;

/// The one window. It owns the scenes, the controllers, the ports and the power button, and its constructor
/// fixes the order in which the program comes up. Plain public members are the program's state. Main thread
/// only, except inSigReceived().
class MainWnd : public QDialog
{
    Q_OBJECT

public:
    MainWnd();
    ~MainWnd() override;

    // Power (MainWnd.cpp)
    /// Sets the power and everything that follows from it.
    void setPower(bool on);
    /// Toggles the power, unless a dialog is open.
    void switchPower();
    void setBackgroundSwitches(bool on);
    /// The library sleeps with the power and comes back with it as the user left it.
    void setLibraryPower(bool on);
    [[nodiscard]] bool isPowerOn() const;
    /// A dialog or a menu is open: keys mean that.
    [[nodiscard]] bool isOccupied() const { return dialogOpen || QApplication::activePopupWidget(); }
    /// Keys select instead of sounding.
    [[nodiscard]] bool isLearning() const { return learnTonic || learnScale; }
    void createFloatingSwitches() {} ///< empty: there are no floating switches

    // Window (MainWnd_window.cpp)
    /// Asks before something is lost. True if the user pressed the button of that text; the other is
    /// "Cancel".
    [[nodiscard]] bool confirmAlert(const QString& text, const QString& accept);
    bool eventFilter(QObject* object, QEvent* event) override;

    // Buttons (MainWnd_buttons.cpp)
    /// Keeps the stacking of the two large hit areas in step with the centre screen.
    void didCenterSceneChange();

    // Centre screen (MainWnd_center.cpp)
    /// Opens the library, or goes back to the scene before it.
    void showLibraryScreen(bool show);
    /// The centre screen's scene of that number, 1 to 4, with the ways that lead out of it; another number
    /// does nothing.
    void showScene(int number);
    /// Asks for the names of the scale that the selector shows.
    void editPlayedScale();
    /// Gives the keyboard to the input view.
    void focusInKeyboard();

    // Presets and library (MainWnd_presets.cpp)
    /// Makes the preset of a black key: `keyNumber` is its MIDI note number, `headerIndex` the row of
    /// `resetHeaderData`, 0 to 35; `position` in scene coordinates is its home. Another index or type makes
    /// none.
    void createHeaderItem(const QString& name, int keyNumber, int headerIndex, header_type type,
                          QPointF position, header_status status);
    /// Follows the word of the scale selector: the active header's names, and the library's current category
    /// and scale. The argument is not used.
    void checkScaleMatches(bool);
    /// Puts the power button on the header below a place, given as the button's position in the scene. False
    /// if there is none but its own; the button is back in its place then.
    bool findPowerItemPosition(QPointF pos);

    // Scenes (MainWnd_scenes.cpp, MainWnd_selectors.cpp)
    /// Makes a key: `note` is its MIDI note number, `pixmap` its bare picture, `position` in scene
    /// coordinates.
    [[nodiscard]] ResizableItem* createResItem(const QString& side, const QString& name, int note,
                                               const QPixmap& pixmap, QPoint position);
    [[nodiscard]] TonicKeyItem* createTonicKeyItem(tonic_key_type type, KeyControllerBase* ctrl, int index,
                                                   const QPixmap& pix, QPointF pos);
    [[nodiscard]] QPixmap addBlueShine(const QPixmap& pixmap) const;
    [[nodiscard]] QPixmap addYellowShine(const QPixmap& pixmap) const;
    [[nodiscard]] QPixmap overlayTwoPixmaps(const QPixmap& base, const QPixmap& overlay,
                                            const QRect& rectangle) const;
    /// Numbers the square of a scale degree, 0 to 11, with 1 to 12; ordinal 0 leaves it blank.
    void showScaleSquare(int degree, int ordinal);
    /// Ends what the pointer holds on the stage and in the library, before something takes the pointer away.
    void endGestures();

    // Files (MainWnd_files.cpp)
    /// Asks for a database file and takes up what it holds, or says why it cannot.
    void openDatabase();
    /// Asks for a file and writes the whole state into it, or says why it cannot.
    void saveDatabase();
    /// Takes up a file's state; the ports stay as their rows show. Returns what went wrong, or "".
    [[nodiscard]] QString importDatabase(const QString& file);
    /// Writes the state as it is between gestures. Returns what went wrong, or "".
    [[nodiscard]] QString exportDatabase(const QString& file);

    // MIDI (MainWnd_midi.cpp)
    /// The key of a note on the input keyboard, or null.
    [[nodiscard]] ResizableItem* findInNote(int note) const;
    /// Runs on a MIDI library thread: copies the bytes and emits signalKey(), nothing else.
    void inSigReceived(double deltaTime, std::vector<unsigned char>* message, void* userData);
    /// Writes the first three bytes of a message, which must have them, to every open output port. A port
    /// that fails is warned of and passed over.
    void sendMidiOut(const QList<int>* message);
    /// Ends the notes of the keys that a player holds.
    void releaseHeldNotes();
    [[nodiscard]] bool checkActiveMidiOut() const;
    /// Lets the pressed key be seen before a recall. MIDI messages that arrive meanwhile wait for the recall,
    /// in their order, so that the next note plays the new mapping.
    void showBeforeRecall();
    [[nodiscard]] bool isRecalling() const { return holdMessages; }

    // Ports (MainWnd_ports.cpp)
    void scanMIDIPorts();
    void inPortChanged(QListWidgetItem* item);
    void outPortChanged(QListWidgetItem* item);
    /// Remembers which rows are selected.
    void storePortSelection() const;
    /// What the user reads when a port cannot be opened.
    [[nodiscard]] static QString portErrorText(const QString& reason);

    // Digits (MainWnd_digits.cpp)
    enum digit_type : int { digit_anchor_in = 0, digit_anchor_out = 1, digit_square = 2, digit_bar = 3 };
    void createDigits();
    /// The number as a picture, 8 pixels high; at most two digits of it. An unknown type gives a null picture
    /// or, for two digits and negative numbers, a blank one.
    [[nodiscard]] QPixmap getDigitalPix(digit_type type, int number) const;
    /// The number of a degree, 1 to 12, as the bars show it; blank for another number.
    [[nodiscard]] const QPixmap& degreeDigits(int number) const;

    CenterScreen* centerScreen = nullptr;
    KeyboardWalk* keyboardWalk = nullptr;
    DatabaseLibrary library;
    PowerItem* powerItem = nullptr;
    bool dialogOpen = false;
    bool learnTonic = false;        ///< set by nobody yet
    bool learnScale = false;        ///< set by nobody yet
    bool learnPending = false;      ///< cleared by a key that is pushed in a learn mode
    bool headerEraseMode = false;   ///< set by nobody yet: a press on a header erases or resets it
    bool headerEraseResets = false; ///< set by nobody yet: it resets
    QList<QGraphicsItem*> listItemsTonic;
    KeyControllerBase* tonicController = nullptr;
    KeyControllerBase* scaleController = nullptr;
    HeaderController* headerController = nullptr;
    QList<int> inNoteHeld;      ///< 128 flags by MIDI note number
    QList<RtMidiIn*> inPorts;   ///< one slot a list row, null while closed
    QList<RtMidiOut*> outPorts; ///< one slot a list row, null while closed
    bool midiOutOpen = false;
    QList<QGraphicsItem*> listItemsIN;
    QList<QGraphicsItem*> listItemsOUT;
    using Digits = QMap<int, QPixmap>;
    Digits digitsAnchorIn, digitsAnchorOut, digitsBar, digitsSquare;
    FloatingButton floatingButton;
    QShortcut newWindowShortcut;
    Ui_SorvaneClass ui;
    QGraphicsPixmapItem* backgroundOn = nullptr;
    QGraphicsPixmapItem* backgroundOff = nullptr;

public slots:
    void done(int result) override;
    void accept() override;
    void reject() override;
    void openNewWindow() {} ///< empty: kept so that a later window can hang on it

    /// Plays a message, pushKeySlot() first, then midiThru(); behind a recall that is under way it waits.
    void receiveMessage(QList<int> message);
    void pushKeySlot(QList<int> message);
    void midiThru(QList<int> message);
    void inPortSelectionChange();
    void outPortSelectionChange();
    /// The MIDI service has gone: gives its ports up, so that nothing waits for it.
    void midiServiceStopped();

    void on_buttonMIDIinOut_clicked(bool checked);
    void on_buttonCredits_clicked(bool checked);
    void on_buttonManual_clicked();
    void on_buttonExport_clicked();
    void on_buttonImport_clicked();
    void on_buttonReset_clicked();
    void on_scene1Button_clicked();
    void on_scene2Button_clicked();
    void on_scene34TopButton_clicked();
    void on_scene34LeftButton_clicked();
    void on_scene3RightButton_clicked();
    void on_scene4RightButton_clicked();

signals:
    void signalKey(QList<int> message);
    /// Return, Enter or Escape was pressed anywhere in the program.
    void specialKeyPressed(int key);

protected:
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // The builders, in the order of the constructor.
    void setUpWindow();
    void createPowerItem();
    void createSceneOut();
    void createSceneIn();
    void createSceneBack();
    void createSceneTonic();
    void createSceneCenter();
    void connectSignals();
    void takeItemLists();
    void addTonicDegreeKey();
    void wireKeys();
    void fillSceneIn();
    void createHeaders();
    [[nodiscard]] bool takeLibraryTo(const QString& word);
    void fillSceneOut();
    void createAnchorIN();
    void createAnchorOUT();
    void installFilters();

    // Screen (MainWnd_screen.cpp)
    void matchScreen();

    // Window (MainWnd_window.cpp)
    void createShortcuts();
    [[nodiscard]] bool filterKeyPress(QEvent* event);
    void rememberPlaces();

    // Buttons (MainWnd_buttons.cpp)
    [[nodiscard]] QList<QPushButton*> displayButtons() const;
    void dressButtons();
    [[nodiscard]] QList<QWidget*> hitAreas() const;
    void lowerHitAreas();
    void raiseWayBack();
    void raiseButtons();
    void maskHitAreas(const QPolygon& game);
    void leavePages();
    void backToDefaultScene();
    void turnPage(bool open, QPushButton* otherPage, void (CenterScreen::*enter)());
    void openPage(const char* address);
    void clickFocusedButton(int key);

    // Centre screen (MainWnd_center.cpp)
    void createGame();
    void toggleLibrary();
    void openPorts();

    // Files (MainWnd_files.cpp)
    [[nodiscard]] QString askFile(bool toSave);
    void alertFile(const QString& text, const QString& file, const QString& reason);

    // Scenes (MainWnd_scenes.cpp, MainWnd_selectors.cpp)
    DiagramScene* createKeyScene(const QString& side, const QRectF& rectangle, QGraphicsView* view);
    void createRow(tonic_key_type type, KeyControllerBase* ctrl, TonicScene& scene, QPointF origin);
    [[nodiscard]] QPixmap numberedPlate(int ordinal) const;
    void createScaleSquares(TonicScene& scene, QPointF origin);
    void createDisplayParts(TonicScene& scene);

    // MIDI (MainWnd_midi.cpp)
    void pressInKey(ResizableItem* key, int velocity);
    [[nodiscard]] bool mustWait() const;
    void playWaiting();

    // Ports (MainWnd_ports.cpp)
    [[nodiscard]] bool applyInRow(int row);
    [[nodiscard]] bool applyOutRow(int row);
    [[nodiscard]] RtMidiIn* openIn(int row, const QString& name) const;
    [[nodiscard]] RtMidiOut* openOut(int row, const QString& name) const;
    template <typename Port, typename Open>
    [[nodiscard]] bool followRow(QListWidgetItem* item, Port*& port, const Open& open);
    void alertPortError(const RtMidiError& error);

    ChildPlaces places;
    QList<QGraphicsItem*> selectorItems; ///< what sleeps with the power off
    QList<QList<int>> waitingMessages;   ///< received and not yet played
    bool holdMessages = false;
    bool freshKey = false; ///< a key press is coming that no filter has seen
    std::array<QGraphicsPixmapItem*, pitch_mapping::octave> scaleSquares{};
    std::array<QPixmap, 13> squarePlates; ///< by ordinal; 0 is blank
    std::array<QPixmap, 13> barDigits;    ///< by degree number; 0 is blank
    PortKeeper<RtMidiIn> inPortKeeper{inPorts};
    PortKeeper<RtMidiOut> outPortKeeper{outPorts};
};

/// The one window: set by its constructor, valid as long as it lives. Main thread only, but for the address
/// that the MIDI threads hold through `connecter`.
extern MainWnd* mainWnd;
/// The application object, set by main().
extern QApplication* app;
