#pragma once

#include "LibraryTour.h"

/// The steps of the tour, in their order: each begins where the one before has left the library.
class EndToEndLibrary : public LibraryTour
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { broken = broken || QTest::currentTestFailed(); }
    void cleanupTestCase() { end(); }

    void powerAndLibraryComeByHand();
    void listsFollowThePlayedScale();
    void categoriesAreMade();
    void unknownScaleIsMarked();
    void unknownScaleIsAdded();
    void categoriesAreRenamed();
    void scalesAreRenamed();
    void descriptionIsWritten();
    void scalesAreReorderedByDrag();
    void scalesAreTakenToCategoriesByDrag();
    void dragsAreRefusedAndGivenUp();
    void scalesAreCopiedAndMovedByMenu();
    void scaleSwitchDecidesWhatAPressPlays();
    void keyboardAloneDoesItAll();
    void flagsTakeTheBrowserAlong();
    void questionsAreAnsweredByKeys();
    void scalesAreDeletedToTheLast();
    void categoriesAreDeletedToTheLast();
    void libraryIsShutAndComesBack();

private:
    bool broken = false;
};
