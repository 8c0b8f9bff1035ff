#pragma once

class MainWnd;
class RecordingPort;

/// Runs the program's benchmarks with the window shown and without a MIDI service, once `prepare` has brought
/// the window to where they begin. Returns what main() returns.
[[nodiscard]] int runInWindow(int argc, char** argv, void (*prepare)(MainWnd& window));

/// Opens the window's first output, as a port that keeps what it is sent.
void openRecordingPort(MainWnd& window);
/// That port; the benchmarks empty it now and then.
[[nodiscard]] RecordingPort& recordingPort();
