#pragma once

class QWindow;

/// The name under which desktops list the program. To be told before the first window.
void nameDesktopEntry();

/// Gives a window the application's icon in every size. Reads all pictures and, on X11, sends them to the
/// server: milliseconds, to be spent once a window is shown.
void giveIcon(QWindow& window);
