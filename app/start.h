#pragma once

#include "app/CommandLine.h"

class MainWnd;

/// What the command line asks of the program that starts, carried out as the user would do it.
namespace start {

/// Prints the ports of both directions and the back end. Returns the process's exit status.
int listPorts();

/// Marks the named port rows as selected, the others as not; the virtual rows unless `--no-virtual` stay.
/// Call it before the window lists the ports. Returns one line that says which name fails, or "".
[[nodiscard]] QString selectPorts(CommandLine& wanted);

/// Looks at the files that will be read and written, and remembers the port selections of those that will be
/// read. Call it before selectPorts(). Returns one line that says which file will not do, or "".
[[nodiscard]] QString openFiles(const CommandLine& wanted);

/// Takes up the session, then the file to import. Returns one line that says what failed, or "".
[[nodiscard]] QString readFiles(const CommandLine& wanted, MainWnd& window);

/// Writes the session. Returns one line that says what failed, or "".
[[nodiscard]] QString writeSession(const CommandLine& wanted, MainWnd& window);

/// Writes the session and the file to export. Returns one line for each that failed, or "".
[[nodiscard]] QString writeFiles(const CommandLine& wanted, MainWnd& window);

/// Sets tonic, scale and power through the selectors.
void setSelectors(const CommandLine& wanted, MainWnd& window);

/// Prints one line on standard error if there is no MIDI service.
void reportMissingService();

/// Ends the callbacks of the open input ports: the process is about to take the window's world apart.
void stopMidiInput(MainWnd& window);

/// Ends what still sounds, before the process that should end it is gone.
void stopNotes(MainWnd& window);

/// Closes the output ports, behind what was sent to them. A JACK server that hangs costs a second each.
void closeMidiOutput(MainWnd& window);

} // namespace start
