#include "screen/LibraryButtonControl.h"

#include "app/MainWnd.h"
#include "screen/CenterScreen.h"
#include "screen/LibraryButton.h"

LibraryButtonControl::LibraryButtonControl(LibraryButton& onButton) : StageControl(onButton), button(onButton)
{
}

QString LibraryButtonControl::name() const
{
    return button.toolTip();
}

QString LibraryButtonControl::description() const
{
    return button.text();
}

void LibraryButtonControl::press()
{
    mainWnd->centerScreen->carryOut(button.code);
}
