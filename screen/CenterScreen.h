#pragma once

#include "screen/LibraryButton.h"

#include <QListWidget>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <utility>
#include <vector>

class LibraryView;
class PortListWidget;
class StageMenu;
class QGraphicsScene;
class QGraphicsTextItem;
class QTimer;
class Ui_SorvaneClass;

/// Decides what the panel between the keyboards shows: its scenes, the ports, the credits, and the library,
/// which is edited by hand here and nowhere else. It is never shown itself. Main thread only.
class CenterScreen : public QWidget
{
    Q_OBJECT

public:
    /// Works on the widgets of the form, which it does not own, and on the scene below them.
    CenterScreen(QGraphicsScene* centreScene, const Ui_SorvaneClass& ui, QWidget* mainWindow);
    ~CenterScreen() override;

    // Scenes (CenterScreen.cpp)
    enum scene_number {
        scene_none = 0,
        scene_default = 1,
        scene_clean = 2,
        scene_ports = 3,
        scene_credits = 4
    };
    void setSceneDefault();
    void setSceneClean();
    void setSceneMIDIinOut();
    void setSceneLibrary();
    /// The setter of the current scene once more.
    void setScenePrevious();
    /// A file's text, read as UTF-8; "" if it cannot be read.
    [[nodiscard]] static QString getMainTextData(const QString& file);

    // Ports (CenterScreen_ports.cpp)
    void addMidiPortsListView();
    void showMIDIPortsListView(bool show);
    /// Appends a row, selected or not, and asks for delayedSelect() in 200 milliseconds.
    void addInPort(const QString& name, bool selected);
    void addOutPort(const QString& name, bool selected);
    /// The row's text; "" for a row that does not exist.
    [[nodiscard]] QString getInPort(int row) const;
    [[nodiscard]] QString getOutPort(int row) const;

    // Credits (CenterScreen_credits.cpp)
    void setSceneCredits();
    /// The lines of a file, wrapped; none if it cannot be read.
    [[nodiscard]] static QStringList parseCreditFile(const QString& file);
    void hideCreditText();
    void resetCreditText();

    // Library view (CenterScreen_library.cpp)
    void addLibraryView();
    void showLibraryView(bool show);
    /// Whether the played scale is in the library.
    [[nodiscard]] bool isMatches() const { return matches; }
    /// The library can be opened with the power on only.
    void setLibraryAccess(bool powered);
    [[nodiscard]] bool isLibraryAccessible() const;
    void setGhostCopyButtonsEnabled(bool enabled);
    void showExclamationMark(bool show);
    /// False without a library view; else whether the plates have room for the name (library_name::fits).
    [[nodiscard]] bool canBeRightLibraryName(const QString& name) const;
    [[nodiscard]] LibraryView* libraryView() const { return view.get(); }

    // What the browser shows (CenterScreen_browser.cpp)
    /// Brings lists, page and plates up to date, where they are not, once the notes that wait are played.
    void updateBrowser();
    /// The same at once, for what the user's hand does.
    void refreshBrowser();
    void updateCategoryItems();
    void updateNameItems(const QString& category, int index);
    /// The scale that is played; the page and the plate follow with the next update.
    void updateSceneDescr(const QString& key);

    // What the user does with the library (CenterScreen_library_edit.cpp)
    /// The action of a library button.
    void carryOut(LibraryButton::Code code);
    /// Adds the played scale. `field`, a scale_field, takes the focus.
    void appendScale(int field);
    /// Edits a scale, or adds it to a category if it stands in none.
    void openEditSceneDlg(QString word, int field);

    // Categories, and the places of scales in them (CenterScreen_library_places.cpp)
    void appendCategory();
    void renameCategory();
    void deleteCategory();
    void editCategory(); ///< renames it
    void copyScale();
    void moveScale();
    void deleteScale();

    QListWidget* inPortList = nullptr;
    QListWidget* outPortList = nullptr;
    QList<QGraphicsTextItem*> creditItems;
    QStringList creditLines;
    int currentScene = scene_none;
    bool libraryOpen = false;
    bool libraryRemembered = false; ///< whether the library opens with the power
    bool matches = false;
    QTimer* const creditTimer;

public slots:
    /// Opens the ports of the selected rows: the event loop runs by then and the rows are complete.
    void delayedSelect();
    void moveCreditsText();
    void categoryListItemClicked(QListWidgetItem* item);
    void scaleListItemClicked(QListWidgetItem* item);
    void scaleListItemDblClicked(QListWidgetItem* item);
    void descrButtonClicked();

private:
    // Scenes (CenterScreen.cpp)
    void leaveScene();
    void showButtons(bool left, bool right);
    void showTexts(bool show);
    void enterScene(scene_number number);

    // Ports (CenterScreen_ports.cpp)
    [[nodiscard]] PortListWidget* createPortList(const QRect& place, const QString& name,
                                                 const QString& style);
    void addPort(PortListWidget& list, const QString& name, bool selected);

    // What the browser shows (CenterScreen_browser.cpp)
    /// All that the browser shows, in short: what is equal needs no rebuilding.
    struct Shown
    {
        int revision, category, scale;
        QString described, played;
        bool operator==(const Shown& other) const;
    };
    [[nodiscard]] Shown wanted() const;
    void showDescription();
    void playScale(const QString& word);

    // What the user does with the library (CenterScreen_library_edit.cpp)
    void editCategoryKey(int key);
    void editScaleKey(int key);
    void addToLibrary(QString word, int field);
    void showStored(const QString& word);

    // Categories, and the places of scales in them (CenterScreen_library_places.cpp)
    [[nodiscard]] bool confirmDelete(const QString& name);
    [[nodiscard]] QString askCategory(LibraryButton::Code at, const QString& word);

    QGraphicsScene* const scene;
    const Ui_SorvaneClass& form;
    QWidget* const window;
    QGraphicsPixmapItem* portBackground = nullptr;
    std::unique_ptr<LibraryView> view;
    QTimer* const browserTimer;
    QString samplePage;
    QPointer<StageMenu> categoryMenu; ///< while it is up
    QString describedWord;            ///< whose page shows
    QString playedWord;
    Shown shown{-1, -1, -1, {}, {}};
    std::vector<std::pair<QString, QString>> shownScales;
    QString shownPage;
};
