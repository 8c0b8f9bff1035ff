<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AddWindow</name>
    <message>
        <source>New scale</source>
        <translation>Neue Skala</translation>
    </message>
</context>
<context>
    <name>AlertMessageBoxWidget</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>AnchorControl</name>
    <message>
        <source>Anchor %1</source>
        <translation>Anker %1</translation>
    </message>
    <message>
        <source>Slides the scale along the white keys</source>
        <translation>Verschiebt die Skala auf den weißen Tasten</translation>
    </message>
</context>
<context>
    <name>CenterScreen</name>
    <message>
        <source>(no categories)</source>
        <translation>(keine Kategorien)</translation>
    </message>
    <message>
        <source>(no records)</source>
        <translation>(keine Skalen)</translation>
    </message>
    <message>
        <source>User</source>
        <extracomment>Files hold it, and it is looked for there: &quot;User&quot; in every language.</extracomment>
        <translation>User</translation>
    </message>
    <message>
        <source>Choose a name for the new Category:</source>
        <translation>Name der neuen Kategorie:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Choose a new name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>&lt;h4&gt;Are you sure you want to delete &lt;br/&gt;&amp;quot;%1&amp;quot;?&lt;/h4&gt;&lt;h6&gt;You can&apos;t undo this action.&lt;/h6&gt;</source>
        <translation>&lt;h4&gt;„%1“&lt;br/&gt;wirklich löschen?&lt;/h4&gt;&lt;h6&gt;Das lässt sich nicht rückgängig machen.&lt;/h6&gt;</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Click a port to open or close it; several can be open at once</source>
        <translation>Klick öffnet oder schließt einen Port; mehrere können offen sein</translation>
    </message>
    <message>
        <source>MIDI input ports</source>
        <translation>MIDI-Eingänge</translation>
    </message>
    <message>
        <source>MIDI output ports</source>
        <translation>MIDI-Ausgänge</translation>
    </message>
</context>
<context>
    <name>ChangeDialog</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print this help and end.</source>
        <translation>Diese Hilfe ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Print the version and end.</source>
        <translation>Die Version ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Run without a window.</source>
        <translation>Ohne Fenster laufen.</translation>
    </message>
    <message>
        <source>Set the power at start: on or off.</source>
        <translation>Beim Start ein- oder ausschalten: on oder off.</translation>
    </message>
    <message>
        <source>Set the tonic at start: C, C#, D, ... B.</source>
        <translation>Grundton beim Start: C, C#, D, ... B (deutsch H).</translation>
    </message>
    <message>
        <source>Set the scale at start: twelve letters, x for a note of the scale and o for none, the tonic first.</source>
        <translation>Skala beim Start: zwölf Buchstaben, x für einen Ton der Skala und o für keinen, der Grundton zuerst.</translation>
    </message>
    <message>
        <source>Open this input port; repeatable. A unique part of the name will do.</source>
        <translation>Diesen Eingang öffnen; mehrfach möglich. Ein eindeutiger Teil des Namens genügt.</translation>
    </message>
    <message>
        <source>Open this output port; repeatable. A unique part of the name will do.</source>
        <translation>Diesen Ausgang öffnen; mehrfach möglich. Ein eindeutiger Teil des Namens genügt.</translation>
    </message>
    <message>
        <source>Do not open Sorvane&apos;s own virtual ports.</source>
        <translation>Sorvanes eigene virtuelle Ports nicht öffnen.</translation>
    </message>
    <message>
        <source>Print the MIDI ports of both directions and end.</source>
        <translation>Die MIDI-Ports beider Richtungen ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Use this MIDI back end: alsa or jack (also: SORVANE_MIDI_API).</source>
        <translation>Dieses MIDI-System benutzen: alsa oder jack (auch: SORVANE_MIDI_API).</translation>
    </message>
    <message>
        <source>Take up the state in this database file at start.</source>
        <translation>Beim Start den Zustand aus dieser Datenbankdatei übernehmen.</translation>
    </message>
    <message>
        <source>Write the state into this database file at the end.</source>
        <translation>Am Ende den Zustand in diese Datenbankdatei schreiben.</translation>
    </message>
    <message>
        <source>Go on where this file left off, if it exists, and write it at the end.</source>
        <translation>Dort weitermachen, wo diese Datei aufhört, falls es sie gibt, und sie am Ende schreiben.</translation>
    </message>
    <message>
        <source>Write a log file, of entries of this level and graver ones, as in --log=warn: all, debug, diag, info, warn, error or fatal. --log alone means --log=error.</source>
        <translation>Eine Protokolldatei schreiben, mit Einträgen ab dieser Stufe, wie in --log=warn: all, debug, diag, info, warn, error oder fatal. --log allein heißt --log=error.</translation>
    </message>
    <message>
        <source>Let the program&apos;s debug lines through.</source>
        <translation>Die Debug-Zeilen des Programms durchlassen.</translation>
    </message>
    <message>
        <source>Plays any tonic and scale on the white keys of a MIDI keyboard.</source>
        <translation>Spielt jeden Grundton und jede Skala auf den weißen Tasten eines MIDI-Keyboards.</translation>
    </message>
    <message>
        <source>Write log lines without time and number.</source>
        <translation>Protokollzeilen ohne Zeit und Nummer schreiben.</translation>
    </message>
    <message>
        <source>%1: there is no port &quot;%2&quot; (see --list-ports)</source>
        <translation>%1: Es gibt keinen Port „%2“ (siehe --list-ports)</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is a part of several port names: %3</source>
        <translation>%1: „%2“ ist Teil mehrerer Portnamen: %3</translation>
    </message>
    <message>
        <source>Unknown word &quot;%1&quot;. The level of the log stands behind an equals sign: --log=%1.</source>
        <translation>Unbekanntes Wort „%1“. Die Stufe des Protokolls steht hinter einem Gleichheitszeichen: --log=%1.</translation>
    </message>
    <message>
        <source>Unknown word &quot;%1&quot;.</source>
        <translation>Unbekanntes Wort „%1“.</translation>
    </message>
    <message>
        <source>--%1 can be given once.</source>
        <translation>--%1 darf nur einmal stehen.</translation>
    </message>
    <message>
        <source>--%1 takes the name of a file.</source>
        <translation>--%1 braucht den Namen einer Datei.</translation>
    </message>
    <message>
        <source>--log can be given once.</source>
        <translation>--log darf nur einmal stehen.</translation>
    </message>
    <message>
        <source>--log takes one of all, debug, diag, info, warn, error, fatal, not &quot;%1&quot;.</source>
        <translation>--log nimmt all, debug, diag, info, warn, error oder fatal, nicht „%1“.</translation>
    </message>
    <message>
        <source>--power takes on or off, not &quot;%1&quot;.</source>
        <translation>--power nimmt on oder off, nicht „%1“.</translation>
    </message>
    <message>
        <source>--tonic takes one of %1, not &quot;%2&quot;.</source>
        <translation>--tonic nimmt einen Namen aus %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>--scale takes twelve letters, x or o, the first one x, not &quot;%1&quot;.</source>
        <translation>--scale nimmt zwölf Buchstaben, x oder o, der erste ein x, nicht „%1“.</translation>
    </message>
    <message>
        <source>--midi-api takes alsa or jack, not &quot;%1&quot;.</source>
        <translation>--midi-api nimmt alsa oder jack, nicht „%1“.</translation>
    </message>
</context>
<context>
    <name>EditWindow</name>
    <message>
        <source>Names and description of the scale</source>
        <translation>Namen und Beschreibung der Skala</translation>
    </message>
</context>
<context>
    <name>FlagControl</name>
    <message>
        <source>Preset on %1</source>
        <translation>Preset auf %1</translation>
    </message>
</context>
<context>
    <name>GameCellControl</name>
    <message>
        <source>Game: row %1, column %2</source>
        <translation>Spiel: Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>nought</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
</context>
<context>
    <name>HeaderController</name>
    <message>
        <source>Copy Header</source>
        <translation>Preset kopieren</translation>
    </message>
    <message>
        <source>Paste Header</source>
        <translation>Preset einfügen</translation>
    </message>
    <message>
        <source>Lock: Tonic</source>
        <translation>Sperren: Grundton</translation>
    </message>
    <message>
        <source>Lock: Scale</source>
        <translation>Sperren: Skala</translation>
    </message>
    <message>
        <source>Unlock: Tonic</source>
        <translation>Entsperren: Grundton</translation>
    </message>
    <message>
        <source>Unlock: Scale</source>
        <translation>Entsperren: Skala</translation>
    </message>
    <message>
        <source>Lock: Both</source>
        <translation>Sperren: beide</translation>
    </message>
    <message>
        <source>Unlock: Both</source>
        <translation>Entsperren: beide</translation>
    </message>
    <message>
        <source>Reset: C/Ionian</source>
        <translation>Zurücksetzen: C/Ionisch</translation>
    </message>
    <message>
        <source>Empty: Intervals</source>
        <translation>Leeren: Intervalle</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Alle löschen</translation>
    </message>
    <message>
        <source>&lt;h4&gt;Are you sure you want to permanently erase the settings in all Headers?&lt;/h4&gt;&lt;h6&gt;You can&apos;t undo this operation.&lt;/h6&gt;</source>
        <translation>&lt;h4&gt;Wirklich die Einstellungen aller Presets endgültig löschen?&lt;/h4&gt;&lt;h6&gt;Das lässt sich nicht rückgängig machen.&lt;/h6&gt;</translation>
    </message>
    <message>
        <source>Erase All</source>
        <translation>Alle löschen</translation>
    </message>
    <message>
        <source>&lt;h4&gt;Are you sure you want to reset Sorvane?&lt;/h4&gt;&lt;h6&gt;You can&apos;t undo this operation.&lt;/h6&gt;</source>
        <translation>&lt;h4&gt;Sorvane wirklich zurücksetzen?&lt;/h4&gt;&lt;h6&gt;Das lässt sich nicht rückgängig machen.&lt;/h6&gt;</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>HeaderItem</name>
    <message>
        <source>User</source>
        <extracomment>Files hold it, and it is looked for there: &quot;User&quot; in every language.</extracomment>
        <translation>User</translation>
    </message>
    <message>
        <source>%1 (%2 %3)</source>
        <translation>%1 (%2 %3)</translation>
    </message>
    <message>
        <source>tonic</source>
        <translation>Grundton</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>as it is</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>Tonic: %1</source>
        <translation>Grundton: %1</translation>
    </message>
    <message>
        <source>Scale: %1</source>
        <translation>Skala: %1</translation>
    </message>
    <message>
        <source>Locked: %1</source>
        <translation>Gesperrt: %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
</context>
<context>
    <name>KeyControl</name>
    <message>
        <source>%1 of the output</source>
        <translation>%1 am Ausgang</translation>
    </message>
    <message>
        <source>black key</source>
        <translation>schwarze Taste</translation>
    </message>
    <message>
        <source>white key</source>
        <translation>weiße Taste</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>switches the power</source>
        <translation>schaltet ein und aus</translation>
    </message>
    <message>
        <source>recalls its preset</source>
        <translation>ruft ihr Preset ab</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>stumm</translation>
    </message>
    <message>
        <source>plays %1</source>
        <translation>spielt %1</translation>
    </message>
</context>
<context>
    <name>LibraryView</name>
    <message>
        <source>New category (Insert)</source>
        <translation>Neue Kategorie (Einfg)</translation>
    </message>
    <message>
        <source>Delete the category (Delete)</source>
        <translation>Kategorie löschen (Entf)</translation>
    </message>
    <message>
        <source>Rename the category (F2)</source>
        <translation>Kategorie umbenennen (F2)</translation>
    </message>
    <message>
        <source>Add the scale that is played (Insert)</source>
        <translation>Gespielte Skala hinzufügen (Einfg)</translation>
    </message>
    <message>
        <source>Copy the scale to another category (Ctrl+C)</source>
        <translation>Skala in eine andere Kategorie kopieren (Strg+C)</translation>
    </message>
    <message>
        <source>Move the scale to another category (Ctrl+X)</source>
        <translation>Skala in eine andere Kategorie verschieben (Strg+X)</translation>
    </message>
    <message>
        <source>Delete the scale from the category (Delete)</source>
        <translation>Skala aus der Kategorie löschen (Entf)</translation>
    </message>
    <message>
        <source>First short name: click to edit</source>
        <translation>Erstes Kürzel: Klick zum Bearbeiten</translation>
    </message>
    <message>
        <source>Second short name: click to edit</source>
        <translation>Zweites Kürzel: Klick zum Bearbeiten</translation>
    </message>
    <message>
        <source>Open the scale library (Ctrl+L)</source>
        <translation>Skalenbibliothek öffnen (Strg+L)</translation>
    </message>
    <message>
        <source>Close the scale library (Ctrl+L)</source>
        <translation>Skalenbibliothek schließen (Strg+L)</translation>
    </message>
    <message>
        <source>The scale that is played: click to edit its name</source>
        <translation>Gespielte Skala: Klick zum Ändern des Namens</translation>
    </message>
    <message>
        <source>Edit the description</source>
        <translation>Beschreibung bearbeiten</translation>
    </message>
    <message>
        <source>The scale that is played is not in the library</source>
        <translation>Die gespielte Skala ist nicht in der Bibliothek</translation>
    </message>
    <message>
        <source>Scale categories</source>
        <translation>Skalenkategorien</translation>
    </message>
    <message>
        <source>Scales of the category</source>
        <translation>Skalen der Kategorie</translation>
    </message>
    <message>
        <source>Description of the scale</source>
        <translation>Beschreibung der Skala</translation>
    </message>
    <message>
        <source>Click to edit the description</source>
        <translation>Klick zum Bearbeiten der Beschreibung</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Power: click the button, or press Space. Drag its sleeve to another flag.</source>
        <translation>Power: Knopf anklicken oder Leertaste drücken. Die Hülse auf eine andere Flagge ziehen.</translation>
    </message>
    <message>
        <source>Drag to slide the scale along the white keys. 0 marks the tonic, the others its octaves.</source>
        <translation>Ziehen verschiebt die Skala auf den weißen Tasten. 0 ist der Grundton, die anderen Anker seine Oktaven.</translation>
    </message>
    <message>
        <source>:/Resources/CenterScreen/MainCenterScreenTextData.html</source>
        <extracomment>The page in the display: a language has a file of its own, beside its other texts.</extracomment>
        <translation>:/i18n/about_de.html</translation>
    </message>
    <message>
        <source>The file cannot be opened:&lt;br/&gt;%1&lt;br/&gt;%2</source>
        <translation>Die Datei lässt sich nicht öffnen:&lt;br/&gt;%1&lt;br/&gt;%2</translation>
    </message>
    <message>
        <source>The file cannot be saved:&lt;br/&gt;%1&lt;br/&gt;%2</source>
        <translation>Die Datei lässt sich nicht speichern:&lt;br/&gt;%1&lt;br/&gt;%2</translation>
    </message>
    <message>
        <source>Save a database</source>
        <translation>Datenbank speichern</translation>
    </message>
    <message>
        <source>Open a database</source>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>Sorvane databases (%1)</source>
        <translation>Sorvane-Datenbanken (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>  OK  </source>
        <translation>  OK  </translation>
    </message>
    <message>
        <source>The port is gone.</source>
        <translation>Der Port ist verschwunden.</translation>
    </message>
    <message>
        <source>There was an error with selected MIDI port:&lt;br/&gt;%1&lt;br/&gt;Please check if this port is not opened in some other software.</source>
        <translation>Fehler beim gewählten MIDI-Port:&lt;br/&gt;%1&lt;br/&gt;Bitte prüfen, ob ein anderes Programm den Port offen hat.</translation>
    </message>
    <message>
        <source>the MIDI service has stopped; its ports are closed. Start it again and select the ports anew.</source>
        <translation>Der MIDI-Dienst ist ausgefallen, seine Ports sind geschlossen. Dienst neu starten, dann die Ports neu wählen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MidiService</name>
    <message>
        <source>No MIDI service: Sorvane plays by mouse only. Load the ALSA sequencer (sudo modprobe snd-seq), get the right to it (group audio), or start JACK or PipeWire (with pw-jack), then start Sorvane again.</source>
        <translation>Kein MIDI-Dienst: Sorvane spielt nur mit der Maus. Den ALSA-Sequencer laden (sudo modprobe snd-seq), das Recht dazu holen (Gruppe audio) oder JACK oder PipeWire (mit pw-jack) starten, dann Sorvane neu starten.</translation>
    </message>
</context>
<context>
    <name>PowerControl</name>
    <message>
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message>
        <source>Over the black key %1</source>
        <translation>Über der schwarzen Taste %1</translation>
    </message>
</context>
<context>
    <name>ScaleFields</name>
    <message>
        <source>First short name</source>
        <translation>Erstes Kürzel</translation>
    </message>
    <message>
        <source>Second short name</source>
        <translation>Zweites Kürzel</translation>
    </message>
    <message>
        <source>(no description)</source>
        <translation>(keine Beschreibung)</translation>
    </message>
    <message>
        <source>Shift+Return begins a new line.</source>
        <translation>Umschalt+Eingabe beginnt eine neue Zeile.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Short name</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>max 5-7 chars allowed(width-dependant), no SPACE, &quot;A-Z&quot;,&quot;a-z&quot; and special chars only &quot;*?()+/-#0123456789&quot;</source>
        <translation>höchstens 5-7 Zeichen (je nach Breite), kein Leerzeichen, nur „A-Z“, „a-z“ und die Sonderzeichen „*?()+/-#0123456789“</translation>
    </message>
</context>
<context>
    <name>SelectorControl</name>
    <message>
        <source>Tonic %1</source>
        <translation>Grundton %1</translation>
    </message>
    <message>
        <source>tritone</source>
        <translation>Tritonus</translation>
    </message>
    <message>
        <source>Semitone %1 above the tonic, %2</source>
        <translation>Halbton %1 über dem Grundton, %2</translation>
    </message>
</context>
<context>
    <name>SorvaneClass</name>
    <message>
        <source>Sorvane</source>
        <translation>Sorvane</translation>
    </message>
    <message>
        <source>Output keyboard</source>
        <translation>Ausgangsklaviatur</translation>
    </message>
    <message>
        <source>Input keyboard</source>
        <translation>Eingangsklaviatur</translation>
    </message>
    <message>
        <source>Tonic and scale selectors</source>
        <translation>Wahl von Grundton und Skala</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Bedienfeld</translation>
    </message>
    <message>
        <source>Output switch</source>
        <translation>Schalter Ausgang</translation>
    </message>
    <message>
        <source>Input switch</source>
        <translation>Schalter Eingang</translation>
    </message>
    <message>
        <source>New window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>Hide the buttons</source>
        <translation>Knöpfe verbergen</translation>
    </message>
    <message>
        <source>Show the buttons</source>
        <translation>Knöpfe zeigen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über Sorvane</translation>
    </message>
    <message>
        <source>Choose the MIDI ports</source>
        <translation>MIDI-Ports wählen</translation>
    </message>
    <message>
        <source>MIDI I/O</source>
        <translation>MIDI I/O</translation>
    </message>
    <message>
        <source>About Sorvane</source>
        <translation>Über Sorvane</translation>
    </message>
    <message>
        <source>info &amp;&amp; credits</source>
        <translation>Info &amp;&amp; Credits</translation>
    </message>
    <message>
        <source>Open the web site</source>
        <translation>Website öffnen</translation>
    </message>
    <message>
        <source>visit website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>Handbuch öffnen</translation>
    </message>
    <message>
        <source>documentation</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Open the page on Facebook</source>
        <translation>Seite auf Facebook öffnen</translation>
    </message>
    <message>
        <source>@Facebook</source>
        <translation>@Facebook</translation>
    </message>
    <message>
        <source>Open the channel on YouTube</source>
        <translation>Kanal auf YouTube öffnen</translation>
    </message>
    <message>
        <source>@YouTube</source>
        <translation>@YouTube</translation>
    </message>
</context>
<context>
    <name>SwitchControl</name>
    <message>
        <source>Preset sets the scale</source>
        <translation>Preset setzt die Skala</translation>
    </message>
    <message>
        <source>Preset sets the tonic</source>
        <translation>Preset setzt den Grundton</translation>
    </message>
</context>
<context>
    <name>TicTacToe</name>
    <message>
        <source>Noughts and crosses</source>
        <translation>Tic-Tac-Toe</translation>
    </message>
    <message>
        <source>A small game of noughts and crosses for two</source>
        <translation>Ein kleines Tic-Tac-Toe für zwei</translation>
    </message>
</context>
<context>
    <name>database_file</name>
    <message>
        <source>It is not a database: %1 at byte %2.</source>
        <translation>Das ist keine Datenbank: %1 bei Byte %2.</translation>
    </message>
    <message>
        <source>It is not a database.</source>
        <translation>Das ist keine Datenbank.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Sie ist leer.</translation>
    </message>
    <message>
        <source>It is too large to be a database.</source>
        <translation>Für eine Datenbank ist sie zu groß.</translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>Diesen Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>Permission denied.</source>
        <translation>Der Zugriff ist verweigert.</translation>
    </message>
</context>
<context>
    <name>description_page</name>
    <message>
        <source>(no description)</source>
        <translation>(keine Beschreibung)</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Sorvane %1, &lt;a style=&quot;color: #575450&quot; href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>Sorvane %1, &lt;a style=&quot;color: #575450&quot; href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
</context>
<context>
    <name>start</name>
    <message>
        <source>MIDI back end: %1</source>
        <translation>MIDI-System: %1</translation>
    </message>
    <message>
        <source>Inputs:</source>
        <translation>Eingänge:</translation>
    </message>
    <message>
        <source>Outputs:</source>
        <translation>Ausgänge:</translation>
    </message>
</context>
</TS>
