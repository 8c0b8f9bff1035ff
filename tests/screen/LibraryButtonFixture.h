#pragma once

#include "LibraryFixture.h"
#include "library_button_table.h"

/// The shown window with the library open, for tests that take the buttons one by one.
class LibraryButtonFixture : public LibraryFixture
{
protected:
    void openForButtons()
    {
        openWindow();
        show();
        openLibrary();
    }
    /// One data row for each button.
    static void addCodes()
    {
        QTest::addColumn<int>("code");
        for (const library_button_table::Row& row : library_button_table::rowsOfTable)
            QTest::addRow("%d", row.code) << static_cast<int>(row.code);
    }
    static LibraryButton::Code fetchedCode()
    {
        QFETCH(int, code);
        return static_cast<LibraryButton::Code>(code);
    }
    /// The library stands open, but for the button that opens it.
    void reach(LibraryButton::Code code) const
    {
        window->showLibraryScreen(code != LibraryButton::open_library);
    }
};
