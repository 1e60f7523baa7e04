<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Velvane</name>
    <message>
        <source>● Recording — Esc to stop</source>
        <extracomment>ActionRecorder, RecordActionsController</extracomment>
        <translation>● Aufnahme – Esc hält an</translation>
    </message>
    <message>
        <source>Add %1</source>
        <extracomment>AddStepGrid, StepList</extracomment>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Choose the application to bring to the front</source>
        <extracomment>AppMenu</extracomment>
        <translation>Programm wählen, das in den Vordergrund kommt</translation>
    </message>
    <message>
        <source>Choose app…</source>
        <extracomment>AppMenu</extracomment>
        <translation>Programm wählen…</translation>
    </message>
    <message>
        <source>Running</source>
        <extracomment>AppMenu</extracomment>
        <translation>Laufende Programme</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>AppMenu, SessionServices</extracomment>
        <translation>Programme</translation>
    </message>
    <message>
        <source>No applications found</source>
        <extracomment>AppMenu</extracomment>
        <translation>Keine Programme gefunden</translation>
    </message>
    <message>
        <source>Unsaved changes could not be kept: %1.</source>
        <extracomment>Autosave</extracomment>
        <translation>Nicht gespeicherte Änderungen konnten nicht gesichert werden: %1.</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Autosave, RestorePanel</extracomment>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>No recording frame to freeze yet.</source>
        <extracomment>BackdropController</extracomment>
        <translation>Es gibt noch kein Aufnahmebild zum Einfrieren.</translation>
    </message>
    <message>
        <source>No live frame yet — grant Screen Recording first.</source>
        <extracomment>BackdropController</extracomment>
        <translation>Noch kein Live-Bild – erlauben Sie zuerst die Bildschirmaufnahme.</translation>
    </message>
    <message>
        <source>Freeze Frame</source>
        <extracomment>BackdropController</extracomment>
        <translation>Bild einfrieren</translation>
    </message>
    <message>
        <source>damaged property list: %1</source>
        <extracomment>BinaryObjects</extracomment>
        <translation>beschädigte Eigenschaftsliste: %1</translation>
    </message>
    <message>
        <source>there are no texts in “%1”, only in %2</source>
        <extracomment>CLI</extracomment>
        <translation>in „%1“ gibt es keine Texte, nur in %2</translation>
    </message>
    <message>
        <source>“%1” is not a finite number</source>
        <extracomment>CLI</extracomment>
        <translation>„%1“ ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>Move Target</source>
        <extracomment>CanvasController, FieldEditing</extracomment>
        <translation>Ziel verschieben</translation>
    </message>
    <message>
        <source>Add Waypoint</source>
        <extracomment>CanvasController</extracomment>
        <translation>Wegpunkt hinzufügen</translation>
    </message>
    <message>
        <source>Added waypoint at (%1, %2).</source>
        <extracomment>CanvasController</extracomment>
        <translation>Wegpunkt bei (%1, %2) hinzugefügt.</translation>
    </message>
    <message>
        <source>Nudge Target</source>
        <extracomment>CanvasController</extracomment>
        <translation>Ziel schrittweise verschieben</translation>
    </message>
    <message>
        <source>Move Start</source>
        <extracomment>CanvasController, FieldEditing</extracomment>
        <translation>Startpunkt verschieben</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>CanvasHint, EditorToolBar</extracomment>
        <translation>Live</translation>
    </message>
    <message>
        <source>Show your live screen as the backdrop</source>
        <extracomment>CanvasHint, EditorToolBar</extracomment>
        <translation>Den Bildschirm live als Hintergrund zeigen</translation>
    </message>
    <message>
        <source>Record</source>
        <extracomment>CanvasHint, StepListPane</extracomment>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>Record real actions and append them as steps</source>
        <extracomment>CanvasHint, StepListPane</extracomment>
        <translation>Echte Aktionen aufnehmen und als Schritte anhängen</translation>
    </message>
    <message>
        <source>Add a step above, or click the preview to drop a Move waypoint. Turn on Live for your real screen, then Freeze to pick targets against a still. Press Z to magnify.</source>
        <extracomment>CanvasHint, InspectorPane</extracomment>
        <translation>Fügen Sie oben einen Schritt hinzu oder klicken Sie in die Vorschau, um einen Wegpunkt zu setzen. Live zeigt Ihren echten Bildschirm; mit Einfrieren wählen Sie Ziele im Standbild. Z vergrößert.</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>CanvasMarks, DemoSettingsForm, cli</extracomment>
        <translation>Start</translation>
    </message>
    <message>
        <source>Scripted screen demonstrations: a demo is a list of steps (move, click,
type, shortcut, wait and more) over a picture of the screen, rendered to an
H.264 movie or performed on the real desktop.</source>
        <extracomment>CommandLine</extracomment>
        <translation>Bildschirm-Demos nach Drehbuch: Eine Demo ist eine Liste von Schritten (Bewegen,
Klick, Tippen, Tastenkürzel, Warten und mehr) über einem Bild des Bildschirms,
die als H.264-Film gerendert oder auf dem echten Bildschirm ausgeführt wird.</translation>
    </message>
    <message>
        <source>Demos to open in the editor</source>
        <extracomment>CommandLine</extracomment>
        <translation>Demos, die im Editor geöffnet werden</translation>
    </message>
    <message>
        <source>Open them in a process of its own, even when Velvane runs already</source>
        <extracomment>CommandLine</extracomment>
        <translation>In einem eigenen Prozess öffnen, auch wenn Velvane schon läuft</translation>
    </message>
    <message>
        <source>The language of all texts, e.g. de</source>
        <extracomment>CommandLine</extracomment>
        <translation>Die Sprache aller Texte, z. B. de</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>CommandLine, cli</extracomment>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>EXIT STATUS
  0  success
  1  failure, with one line on standard error; a live run that was stopped
  2  wrong usage
  130  an export stopped with Ctrl-C

Results go to standard output, messages and progress to standard error.
“velvane SUBCOMMAND --help” explains each subcommand.</source>
        <extracomment>CommandLine</extracomment>
        <translation>STATUS BEIM ENDE
  0  Erfolg
  1  Fehlschlag, mit einer Zeile auf der Fehlerausgabe; ein angehaltener Live-Lauf
  2  falscher Aufruf
  130  ein mit Strg-C beendeter Export

Ergebnisse gehen auf die Standardausgabe, Meldungen und Fortschritt auf die
Fehlerausgabe. „velvane SUBCOMMAND --help“ erklärt jeden Unterbefehl.</translation>
    </message>
    <message>
        <source>(see velvane --help)</source>
        <extracomment>CommandLine, cli</extracomment>
        <translation>(siehe velvane --help)</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <extracomment>CommandLine</extracomment>
        <translation>zu wenig Speicher</translation>
    </message>
    <message>
        <source>standard output cannot be written to</source>
        <extracomment>CommandLine</extracomment>
        <translation>auf die Standardausgabe kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <extracomment>DemoDocument</extracomment>
        <translation>kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Change Canvas</source>
        <extracomment>DemoSettings, FieldEditing</extracomment>
        <translation>Leinwand ändern</translation>
    </message>
    <message>
        <source>“%1” is not a file.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>“%1” is not a picture that Velvane can read.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>„%1“ ist kein Bild, das Velvane lesen kann.</translation>
    </message>
    <message>
        <source>Set Backdrop</source>
        <extracomment>DemoSettings</extracomment>
        <translation>Hintergrund festlegen</translation>
    </message>
    <message>
        <source>Remove Backdrop</source>
        <extracomment>DemoSettings</extracomment>
        <translation>Hintergrund entfernen</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>B</translation>
    </message>
    <message>
        <source>X</source>
        <extracomment>DemoSettingsForm, StepForm</extracomment>
        <translation>X</translation>
    </message>
    <message>
        <source>H</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>H</translation>
    </message>
    <message>
        <source>Y</source>
        <extracomment>DemoSettingsForm, StepForm</extracomment>
        <translation>Y</translation>
    </message>
    <message>
        <source>Demo</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Rate</source>
        <extracomment>DemoSettingsForm, cli</extracomment>
        <translation>Rate</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>fps</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>fps</translation>
    </message>
    <message>
        <source>Start X</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Start X</translation>
    </message>
    <message>
        <source>Start Y</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Start Y</translation>
    </message>
    <message>
        <source>Canvas</source>
        <extracomment>DemoSettingsForm, cli</extracomment>
        <translation>Leinwand</translation>
    </message>
    <message>
        <source>Canvas width</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Breite der Leinwand</translation>
    </message>
    <message>
        <source>Canvas height</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Höhe der Leinwand</translation>
    </message>
    <message>
        <source>Make the canvas as large as the primary display</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Die Leinwand so groß machen wie den Hauptbildschirm</translation>
    </message>
    <message>
        <source>Match Screen</source>
        <extracomment>DemoSettingsForm, EditorWindow</extracomment>
        <translation>Wie Bildschirm</translation>
    </message>
    <message>
        <source>No display was found.</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Es wurde kein Bildschirm gefunden.</translation>
    </message>
    <message>
        <source>Picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Backdrop picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Hintergrundbild</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Choose a picture as the backdrop</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Ein Bild als Hintergrund wählen</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the backdrop picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Das Hintergrundbild entfernen</translation>
    </message>
    <message>
        <source>Choose Backdrop</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Hintergrund wählen</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Keins</translation>
    </message>
    <message>
        <source>There is no backdrop picture.</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Es gibt kein Hintergrundbild.</translation>
    </message>
    <message>
        <source>Export to Video…</source>
        <extracomment>DocumentCommands</extracomment>
        <translation>Als Video exportieren…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <extracomment>Documents</extracomment>
        <translation>„%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>The demo's picture cannot be read; saving leaves it out.</source>
        <extracomment>Documents</extracomment>
        <translation>Das Bild der Demo kann nicht gelesen werden; beim Speichern entfällt es.</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>EditCommands</extracomment>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>EditCommands</extracomment>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <extracomment>EditCommands, SeveralStepsForm, StepListPane</extracomment>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Freeze</source>
        <extracomment>EditorToolBar, ViewCommands</extracomment>
        <translation>Einfrieren</translation>
    </message>
    <message>
        <source>Recording</source>
        <extracomment>EditorToolBar, cli</extracomment>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Freeze the current frame so you can pick targets against a still</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Das aktuelle Bild einfrieren, um Ziele im Standbild zu wählen</translation>
    </message>
    <message>
        <source>Turn on Live or Recording first.</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Schalten Sie zuerst Live oder Aufnahme ein.</translation>
    </message>
    <message>
        <source>Play the captured screen recording as the backdrop</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Die Bildschirmaufnahme als Hintergrund abspielen</translation>
    </message>
    <message>
        <source>Magnify the canvas 4× (Z)</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Leinwand 4× vergrößern (Z)</translation>
    </message>
    <message>
        <source>Run options</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Optionen für Live-Läufe</translation>
    </message>
    <message>
        <source>Hide other apps during run</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Andere Programme beim Lauf ausblenden</translation>
    </message>
    <message>
        <source>Show mouse cursor</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Mauszeiger zeigen</translation>
    </message>
    <message>
        <source>Recording mode</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Aufnahmemodus</translation>
    </message>
    <message>
        <source>Don't record</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Nicht aufnehmen</translation>
    </message>
    <message>
        <source>Record screen</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Record active window</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Aktives Fenster aufnehmen</translation>
    </message>
    <message>
        <source>Active window needs a single-app flow</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>„Aktives Fenster“ geht nur bei einem einzigen Programm</translation>
    </message>
    <message>
        <source>Run Live</source>
        <extracomment>EditorToolBar, DemoCommands</extracomment>
        <translation>Live ausführen</translation>
    </message>
    <message>
        <source>Drive the real cursor through these steps</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Den echten Mauszeiger durch diese Schritte führen</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Unbenannt %1</translation>
    </message>
    <message>
        <source>“%1” is open in another window.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>„%1“ ist in einem anderen Fenster geöffnet.</translation>
    </message>
    <message>
        <source>Choose another name, or close that window first.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Wählen Sie einen anderen Namen oder schließen Sie zuerst jenes Fenster.</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>%1 gespeichert.</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>„%1“ konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>It %1. The demo is still open here with all your changes.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Die Datei %1. Die Demo ist hier mit allen Änderungen weiterhin geöffnet.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <extracomment>EditorWindow, FileCommands, FilePanel</extracomment>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>EditorWindow, ExportProgressView, FilePanel</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>“%1” was changed by another program since it was opened or saved here.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>„%1“ wurde von einem anderen Programm geändert, seit es hier geöffnet oder gespeichert wurde.</translation>
    </message>
    <message>
        <source>Replacing it loses what the other program saved.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Beim Ersetzen geht verloren, was das andere Programm gespeichert hat.</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>EditorWindow, FilePanel</extracomment>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>“%1” was moved or deleted; saving writes it again.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>„%1“ wurde verschoben oder gelöscht; Speichern schreibt die Datei neu.</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>„%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Reloading it can be undone. If you keep your version, saving asks before it replaces the other.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Das Neuladen lässt sich rückgängig machen. Behalten Sie Ihre Fassung, wird beim Speichern gefragt, bevor sie die andere ersetzt.</translation>
    </message>
    <message>
        <source>Reload</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Keep My Version</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Meine Fassung behalten</translation>
    </message>
    <message>
        <source>The screen is larger than the canvas.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Der Bildschirm ist größer als die Leinwand.</translation>
    </message>
    <message>
        <source>The screen has %1 points, the canvas %2. What you do beyond the canvas is recorded at its edge.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Der Bildschirm hat %1 Punkte, die Leinwand %2. Was Sie jenseits der Leinwand tun, wird an ihrem Rand aufgenommen.</translation>
    </message>
    <message>
        <source>Keep Canvas</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Leinwand behalten</translation>
    </message>
    <message>
        <source>Do you want to save the changes to “%1”?</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Möchten Sie die Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Your changes are lost if you don't save them.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Ihre Änderungen gehen verloren, wenn Sie sie nicht speichern.</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>EditorWindow, FileCommands</extracomment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Don't Save</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>“%1” is still being exported.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>„%1“ wird noch exportiert.</translation>
    </message>
    <message>
        <source>Closing the demo stops the export before its movie is whole.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Wird die Demo geschlossen, endet der Export, bevor der Film vollständig ist.</translation>
    </message>
    <message>
        <source>Stop Export</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Export beenden</translation>
    </message>
    <message>
        <source>The recording backdrop is only for the preview: the movie shows the demo's still backdrop.</source>
        <extracomment>ExportController</extracomment>
        <translation>Der Aufnahme-Hintergrund gilt nur für die Vorschau: Der Film zeigt den stehenden Hintergrund der Demo.</translation>
    </message>
    <message>
        <source>Exported to %1.</source>
        <extracomment>ExportController, cli</extracomment>
        <translation>Als %1 exportiert.</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <extracomment>ExportController, cli</extracomment>
        <translation>Export fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Export cancelled.</source>
        <extracomment>ExportController</extracomment>
        <translation>Export abgebrochen.</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed. (Velvane.ExportError error %1.)</source>
        <extracomment>ExportError</extracomment>
        <translation>Der Vorgang konnte nicht abgeschlossen werden. (Velvane.ExportError Fehler %1.)</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <extracomment>ExportPanel</extracomment>
        <translation>Als Video exportieren</translation>
    </message>
    <message>
        <source>MPEG-4 movies (*.mp4)</source>
        <extracomment>ExportPanel</extracomment>
        <translation>MPEG-4-Filme (*.mp4)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>ExportPanel</extracomment>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Save in:</source>
        <extracomment>ExportPanel, FilePanel</extracomment>
        <translation>Speichern in:</translation>
    </message>
    <message>
        <source>Stop the export; the movie keeps what is done</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>Den Export anhalten; der Film behält, was fertig ist</translation>
    </message>
    <message>
        <source>Cancel the export</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>Den Export abbrechen</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>noch %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>noch %1 min</translation>
    </message>
    <message>
        <source>Exporting, %1 %2</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>Export, %1 %2</translation>
    </message>
    <message>
        <source>No movie is %1 × %2 pixels large.</source>
        <extracomment>Exporter</extracomment>
        <translation>Kein Film ist %1 × %2 Pixel groß.</translation>
    </message>
    <message>
        <source>The demo is too long for a movie.</source>
        <extracomment>Exporter</extracomment>
        <translation>Die Demo ist zu lang für einen Film.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Die Adresse für Updates ist nicht sicher.</translation>
    </message>
    <message>
        <source>This system has no secure connections to check for updates with.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Dieses System kann keine sicheren Verbindungen aufbauen, um nach Updates zu suchen.</translation>
    </message>
    <message>
        <source>The update server takes too long to answer.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Der Update-Server antwortet nicht rechtzeitig.</translation>
    </message>
    <message>
        <source>The update feed is longer than %1.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Die Update-Liste ist größer als %1.</translation>
    </message>
    <message>
        <source>The update server %1 could not prove its identity.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Der Update-Server %1 konnte sich nicht ausweisen.</translation>
    </message>
    <message>
        <source>The update server redirects too often.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Der Update-Server leitet zu oft weiter.</translation>
    </message>
    <message>
        <source>The update server redirects to an address that is not secure.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Der Update-Server leitet an eine unsichere Adresse weiter.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Der Update-Server antwortete mit dem Status %1.</translation>
    </message>
    <message>
        <source>The update server %1 could not be reached.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Der Update-Server %1 ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>Change Pause</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Pause ändern</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>Change Duration</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Dauer ändern</translation>
    </message>
    <message>
        <source>Change Frame Rate</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Bildrate ändern</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <extracomment>Fields</extracomment>
        <translation>kein Wörterbuch</translation>
    </message>
    <message>
        <source>step %1: %2</source>
        <extracomment>Fields</extracomment>
        <translation>Schritt %1: %2</translation>
    </message>
    <message>
        <source>missing “%1”</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>“%1” is not a string</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ ist keine Zeichenkette</translation>
    </message>
    <message>
        <source>“%1” is not a boolean</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ ist kein Wahrheitswert</translation>
    </message>
    <message>
        <source>“%1” is not data</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ sind keine Binärdaten</translation>
    </message>
    <message>
        <source>“%1” is not an array</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ ist keine Liste</translation>
    </message>
    <message>
        <source>“%1” is not finite</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ ist nicht endlich</translation>
    </message>
    <message>
        <source>“%1” is not a number</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>“%1” is not an array of two numbers</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ ist keine Liste aus zwei Zahlen</translation>
    </message>
    <message>
        <source>“%1” is not an integer</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>“%1” is out of range</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ liegt außerhalb des zulässigen Bereichs</translation>
    </message>
    <message>
        <source>“%1” is not a UUID: “%2”</source>
        <extracomment>Fields</extracomment>
        <translation>„%1“ ist keine UUID: „%2“</translation>
    </message>
    <message>
        <source>unknown kind “%1”</source>
        <extracomment>Fields</extracomment>
        <translation>unbekannte Art „%1“</translation>
    </message>
    <message>
        <source>cannot be written: another Velvane is writing in its folder</source>
        <extracomment>FolderLock</extracomment>
        <translation>kann nicht geschrieben werden: Ein anderes Velvane schreibt gerade in ihren Ordner</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels is not possible: sides are from 1 to %3 pixels</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>ein Film von %1 × %2 Pixeln ist nicht möglich: Seiten haben 1 bis %3 Pixel</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels is not possible: it has %3 macroblocks, and H.264 allows %4</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>ein Film von %1 × %2 Pixeln ist nicht möglich: Er hat %3 Makroblöcke, und H.264 erlaubt %4</translation>
    </message>
    <message>
        <source>%1 frames per second are not possible: at least 1</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>%1 Bilder pro Sekunde sind nicht möglich: mindestens 1</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels at %3 frames per second is not possible: it has %4 macroblocks per second, and H.264 allows %5</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>ein Film von %1 × %2 Pixeln mit %3 Bildern pro Sekunde ist nicht möglich: Er hat %4 Makroblöcke pro Sekunde, und H.264 erlaubt %5</translation>
    </message>
    <message>
        <source>Actions are being recorded.</source>
        <extracomment>InputTurns</extracomment>
        <translation>Es werden gerade Aktionen aufgenommen.</translation>
    </message>
    <message>
        <source>Delete Step</source>
        <extracomment>InspectorPane, StepList, StepCommands</extracomment>
        <translation>Schritt löschen</translation>
    </message>
    <message>
        <source>Delete this step</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Diesen Schritt löschen</translation>
    </message>
    <message>
        <source>Delete Steps</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Schritte löschen</translation>
    </message>
    <message>
        <source>Delete the selected steps</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Die ausgewählten Schritte löschen</translation>
    </message>
    <message>
        <source>No step selected</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Kein Schritt ausgewählt</translation>
    </message>
    <message>
        <source>%1 steps selected</source>
        <extracomment>InspectorPane</extracomment>
        <translation>%1 Schritte ausgewählt</translation>
    </message>
    <message>
        <source>not a property list</source>
        <extracomment>KeptDemo, velvane</extracomment>
        <translation>keine Eigenschaftsliste</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <extracomment>KeptSession</extracomment>
        <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Driving the real cursor — bring your target app forward</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Der echte Mauszeiger wird bewegt – holen Sie Ihr Zielprogramm nach vorn</translation>
    </message>
    <message>
        <source>Switching to %1</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Wechsel zu %1</translation>
    </message>
    <message>
        <source>Press Esc to abort</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Esc bricht ab</translation>
    </message>
    <message>
        <source>Live run in progress — Esc to stop</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Live-Lauf – Esc hält an</translation>
    </message>
    <message>
        <source>A live run is in progress.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Ein Live-Lauf ist im Gange.</translation>
    </message>
    <message>
        <source>Add some steps first.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Fügen Sie zuerst Schritte hinzu.</translation>
    </message>
    <message>
        <source>Grant Accessibility permission to Velvane, then run again.</source>
        <extracomment>LiveRunController, RecordActionsController</extracomment>
        <translation>Erlauben Sie Velvane die Bedienungshilfen und starten Sie erneut.</translation>
    </message>
    <message>
        <source>Esc cannot be watched for here, so nothing was run.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Esc lässt sich hier nicht überwachen; deshalb wurde nichts ausgeführt.</translation>
    </message>
    <message>
        <source>Recording stopped: %1</source>
        <extracomment>LiveRunController, RecordActionsController</extracomment>
        <translation>Aufnahme angehalten: %1</translation>
    </message>
    <message>
        <source>Couldn't start recording: %1</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Die Aufnahme konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>Live run stopped: the display has gone.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Live-Lauf angehalten: Der Bildschirm ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Live run stopped.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Live-Lauf angehalten.</translation>
    </message>
    <message>
        <source>Live run finished.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Live-Lauf beendet.</translation>
    </message>
    <message>
        <source>Recording saved to %1%2 — revealed in Finder.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Aufnahme unter %1%2 gespeichert – in der Dateiverwaltung gezeigt.</translation>
    </message>
    <message>
        <source> (window not found — recorded full screen)</source>
        <extracomment>LiveRunController</extracomment>
        <translation> (Fenster nicht gefunden – ganzer Bildschirm aufgenommen)</translation>
    </message>
    <message>
        <source>Position the cursor over the target — grabbing in %1s · Esc to cancel</source>
        <extracomment>LocationPicker</extracomment>
        <translation>Bringen Sie den Zeiger über das Ziel – Übernahme in %1 s · Esc bricht ab</translation>
    </message>
    <message>
        <source>another user's link stands in its place</source>
        <extracomment>MovieFile, WholeFile</extracomment>
        <translation>an der Stelle steht der Link eines anderen Benutzers</translation>
    </message>
    <message>
        <source>Not a regular file.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The movie has no duration.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Der Film hat keine Dauer.</translation>
    </message>
    <message>
        <source>The file holds no pictures.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Die Datei enthält keine Bilder.</translation>
    </message>
    <message>
        <source>The movie is encrypted.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Der Film ist verschlüsselt.</translation>
    </message>
    <message>
        <source>No movie can have this size.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Kein Film kann diese Größe haben.</translation>
    </message>
    <message>
        <source>The movie has no picture that can be decoded.</source>
        <extracomment>MovieReader</extracomment>
        <translation>Der Film hat kein Bild, das sich dekodieren lässt.</translation>
    </message>
    <message>
        <source>↑ and ↓ change it by 0.1 s; with Shift, or Page Up and Page Down, by 1 s.</source>
        <extracomment>NumberField</extracomment>
        <translation>↑ und ↓ ändern um 0,1 s; mit Umschalt oder Bild auf und ab um 1 s.</translation>
    </message>
    <message>
        <source>↑ and ↓ change it by 1; with Shift, or Page Up and Page Down, by 10.</source>
        <extracomment>NumberField</extracomment>
        <translation>↑ und ↓ ändern um 1; mit Umschalt oder Bild auf und ab um 10.</translation>
    </message>
    <message>
        <source>Pick on screen — position the cursor over the target.</source>
        <extracomment>PickLocationController</extracomment>
        <translation>Am Bildschirm wählen – bringen Sie den Zeiger über das Ziel.</translation>
    </message>
    <message>
        <source>Pick Location</source>
        <extracomment>PickLocationController</extracomment>
        <translation>Ort wählen</translation>
    </message>
    <message>
        <source>Captured target at (%1, %2)</source>
        <extracomment>PickLocationController</extracomment>
        <translation>Ziel bei (%1, %2) übernommen</translation>
    </message>
    <message>
        <source>Nothing here decodes %1.</source>
        <extracomment>PictureDecoder</extracomment>
        <translation>Nichts hier dekodiert %1.</translation>
    </message>
    <message>
        <source>The movie's pictures cannot be decoded.</source>
        <extracomment>PictureDecoder</extracomment>
        <translation>Die Bilder des Films lassen sich nicht dekodieren.</translation>
    </message>
    <message>
        <source>Step %1, %2</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Schritt %1, %2</translation>
    </message>
    <message>
        <source>Preview canvas</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Click to drop a Move waypoint or to set the selected target. The arrow keys nudge it, Z magnifies.</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Klicken setzt einen Wegpunkt oder das ausgewählte Ziel. Die Pfeiltasten verschieben es, Z vergrößert.</translation>
    </message>
    <message>
        <source>Target %1 at (%2, %3)</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Ziel %1 bei (%2, %3)</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>ProgressBar</extracomment>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>ProgressBar</extracomment>
        <translation>in %1</translation>
    </message>
    <message>
        <source>more than %1 steps</source>
        <extracomment>ProjectFile, velvane</extracomment>
        <translation>mehr als %1 Schritte</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>Question</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Velvane</source>
        <extracomment>Question, RestorePanel, StartWindow</extracomment>
        <translation>Velvane</translation>
    </message>
    <message>
        <source>Today %1</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>Heute %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>d. MMMM</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>Recording starts in %1…</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>Die Aufnahme beginnt in %1…</translation>
    </message>
    <message>
        <source>Couldn't start recording — grant Input Monitoring to Velvane in System Settings.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>Die Aufnahme konnte nicht beginnen – erlauben Sie Velvane in den Systemeinstellungen die Eingabeüberwachung.</translation>
    </message>
    <message>
        <source>Recording stopped — no actions captured.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>Aufnahme angehalten – keine Aktionen erfasst.</translation>
    </message>
    <message>
        <source>Record Actions</source>
        <extracomment>RecordActionsController, StepCommands</extracomment>
        <translation>Aktionen aufnehmen</translation>
    </message>
    <message>
        <source>Recorded %1 step%2.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>%1 Schritt%2 aufgenommen.</translation>
    </message>
    <message>
        <source>Recorded %1 steps%2.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>%1 Schritte%2 aufgenommen.</translation>
    </message>
    <message>
        <source> with screen recording</source>
        <extracomment>RecordActionsController</extracomment>
        <translation> mit Bildschirmaufnahme</translation>
    </message>
    <message>
        <source>This demo has no screen recording yet.</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>Diese Demo hat noch keine Bildschirmaufnahme.</translation>
    </message>
    <message>
        <source>Recording file is missing — backdrop unavailable.</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>Die Aufnahmedatei fehlt – kein Hintergrund verfügbar.</translation>
    </message>
    <message>
        <source>Couldn't read the screen recording (%1).</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>Die Bildschirmaufnahme ist nicht lesbar (%1).</translation>
    </message>
    <message>
        <source>Velvane did not end properly the last time.</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Velvane wurde das letzte Mal nicht richtig beendet.</translation>
    </message>
    <message>
        <source>These demos have changes that were not saved. What is not checked is offered again at the next start.</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Diese Demos haben Änderungen, die nicht gespeichert wurden. Was nicht angekreuzt ist, wird beim nächsten Start wieder angeboten.</translation>
    </message>
    <message>
        <source>Demos with changes that were not saved</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Demos mit nicht gespeicherten Änderungen</translation>
    </message>
    <message>
        <source>Check the demos that you mean</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Kreuzen Sie die gemeinten Demos an</translation>
    </message>
    <message>
        <source>never saved</source>
        <extracomment>RestorePanel</extracomment>
        <translation>nie gespeichert</translation>
    </message>
    <message>
        <source>%1 — %2, %3</source>
        <extracomment>RestorePanel</extracomment>
        <translation>%1 – %2, %3</translation>
    </message>
    <message>
        <source>Open the checked demos</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Die angekreuzten Demos öffnen</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Später</translation>
    </message>
    <message>
        <source>Ask again at the next start</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Beim nächsten Start wieder fragen</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Give up the changes of the checked demos</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Die Änderungen der angekreuzten Demos aufgeben</translation>
    </message>
    <message>
        <source>No display to record</source>
        <extracomment>RunRecorder</extracomment>
        <translation>Kein Bildschirm zum Aufnehmen</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Open the page that permits screen recording</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Die Seite öffnen, die Bildschirmaufnahmen erlaubt</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Look again whether it is permitted</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Erneut prüfen, ob es erlaubt ist</translation>
    </message>
    <message>
        <source>Screen Recording permission needed</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Bildschirmaufnahme muss erlaubt werden</translation>
    </message>
    <message>
        <source>Velvane shows your live screen as the backdrop so you can pick targets where they really are.</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Velvane zeigt den Bildschirm live als Hintergrund, damit Sie Ziele dort wählen, wo sie wirklich sind.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Scrubber</extracomment>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Preview time</source>
        <extracomment>Scrubber</extracomment>
        <translation>Zeit der Vorschau</translation>
    </message>
    <message>
        <source>Together</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Gemeinsam</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>SeveralStepsForm, StepForm, TransportBar, DemoCommands, cli</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause of all selected</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Pause aller ausgewählten</translation>
    </message>
    <message>
        <source>How long to rest after each of these actions</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Wie lange nach jeder dieser Aktionen gewartet wird</translation>
    </message>
    <message>
        <source>s</source>
        <extracomment>SeveralStepsForm, StepForm</extracomment>
        <translation>s</translation>
    </message>
    <message>
        <source>Duplicate the selected steps</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Die ausgewählten Schritte duplizieren</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>SeveralStepsForm, StepListModel</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <extracomment>ShortcutRecorder</extracomment>
        <translation>Tasten drücken…</translation>
    </message>
    <message>
        <source>Record shortcut</source>
        <extracomment>ShortcutRecorder</extracomment>
        <translation>Tastenkürzel aufnehmen</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>StartWindow, FileCommands</extracomment>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Make a new demo</source>
        <extracomment>StartWindow</extracomment>
        <translation>Eine neue Demo anlegen</translation>
    </message>
    <message>
        <source>Open…</source>
        <extracomment>StartWindow, FileCommands</extracomment>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Open a demo from a file</source>
        <extracomment>StartWindow</extracomment>
        <translation>Eine Demo aus einer Datei öffnen</translation>
    </message>
    <message>
        <source>Recent demos</source>
        <extracomment>StartWindow</extracomment>
        <translation>Zuletzt verwendete Demos</translation>
    </message>
    <message>
        <source>Open a recent demo</source>
        <extracomment>StartWindow</extracomment>
        <translation>Eine zuletzt verwendete Demo öffnen</translation>
    </message>
    <message>
        <source>Demos that you open or save appear here.</source>
        <extracomment>StartWindow</extracomment>
        <translation>Demos, die Sie öffnen oder speichern, erscheinen hier.</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>StartWindow</extracomment>
        <translation>%1, in %2</translation>
    </message>
    <message>
        <source>%1 × %2 · %3%</source>
        <extracomment>StatusLineView</extracomment>
        <translation>%1 × %2 · %3 %</translation>
    </message>
    <message>
        <source>Canvas %1</source>
        <extracomment>StatusLineView</extracomment>
        <translation>Leinwand %1</translation>
    </message>
    <message>
        <source>Cut Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>Schritte ausschneiden</translation>
    </message>
    <message>
        <source>Paste Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>Schritte einfügen</translation>
    </message>
    <message>
        <source>Duplicate Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>Schritte duplizieren</translation>
    </message>
    <message>
        <source>Center Window</source>
        <extracomment>StepEdits</extracomment>
        <translation>Fenster zentrieren</translation>
    </message>
    <message>
        <source>Set Shortcut</source>
        <extracomment>StepEdits</extracomment>
        <translation>Tastenkürzel festlegen</translation>
    </message>
    <message>
        <source>Click the preview to set this target — or Pick on screen to grab the cursor's location after a countdown, for spots only visible while interacting (menus, popovers).</source>
        <extracomment>StepForm</extracomment>
        <translation>Klicken Sie in die Vorschau, um dieses Ziel zu setzen – oder übernehmen Sie mit „Am Bildschirm wählen“ nach einem Countdown den Ort des Mauszeigers, etwa in Menüs, die nur kurz sichtbar sind.</translation>
    </message>
    <message>
        <source>A quick press and release at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>Kurz drücken und loslassen, wo der Zeiger gerade ist.</translation>
    </message>
    <message>
        <source>A secondary (right) click at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>Ein Klick mit der rechten Maustaste am aktuellen Punkt.</translation>
    </message>
    <message>
        <source>Presses and holds the button. Add Move steps to drag, then a Release.</source>
        <extracomment>StepForm</extracomment>
        <translation>Drückt die Maustaste und hält sie. Mit Schritten „Bewegen“ ziehen, dann „Loslassen“.</translation>
    </message>
    <message>
        <source>Releases a held button — completes a drag.</source>
        <extracomment>StepForm</extracomment>
        <translation>Lässt die gehaltene Maustaste los und beendet das Ziehen.</translation>
    </message>
    <message>
        <source>Press the key combo to record it (e.g. ⌘C). It fires at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>Drücken Sie die Tastenkombination, um sie aufzunehmen (z. B. ⌘C). Sie wird am aktuellen Punkt ausgelöst.</translation>
    </message>
    <message>
        <source>Pauses for the time shown on the right of the step row.</source>
        <extracomment>StepForm</extracomment>
        <translation>Wartet so lange, wie rechts in der Zeile des Schritts steht.</translation>
    </message>
    <message>
        <source>A heading to organize the flow. It does nothing when the demo runs.</source>
        <extracomment>StepForm</extracomment>
        <translation>Eine Überschrift, die den Ablauf gliedert. Beim Ausführen geschieht nichts.</translation>
    </message>
    <message>
        <source>Target</source>
        <extracomment>StepForm</extracomment>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Target %1</source>
        <extracomment>StepForm</extracomment>
        <translation>Ziel %1</translation>
    </message>
    <message>
        <source>How far from the canvas's left edge</source>
        <extracomment>StepForm</extracomment>
        <translation>Abstand vom linken Rand der Leinwand</translation>
    </message>
    <message>
        <source>How far from the canvas's top edge</source>
        <extracomment>StepForm</extracomment>
        <translation>Abstand vom oberen Rand der Leinwand</translation>
    </message>
    <message>
        <source>Pick on screen</source>
        <extracomment>StepForm</extracomment>
        <translation>Am Bildschirm wählen</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>StepForm</extracomment>
        <translation>Text</translation>
    </message>
    <message>
        <source>The text to type, line breaks included</source>
        <extracomment>StepForm</extracomment>
        <translation>Der Text, der getippt wird, samt Zeilenumbrüchen</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>StepForm</extracomment>
        <translation>Titel</translation>
    </message>
    <message>
        <source>The heading in the step list</source>
        <extracomment>StepForm</extracomment>
        <translation>Die Überschrift in der Schrittliste</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>StepForm, velvane</extracomment>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>App</source>
        <extracomment>StepForm</extracomment>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Center window</source>
        <extracomment>StepForm</extracomment>
        <translation>Fenster zentrieren</translation>
    </message>
    <message>
        <source>Center the app's front window on the screen</source>
        <extracomment>StepForm</extracomment>
        <translation>Das vordere Fenster des Programms auf dem Bildschirm zentrieren</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>StepForm</extracomment>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>How long the action takes</source>
        <extracomment>StepForm</extracomment>
        <translation>Wie lange die Aktion dauert</translation>
    </message>
    <message>
        <source>How long to rest after the action</source>
        <extracomment>StepForm</extracomment>
        <translation>Wie lange nach der Aktion gewartet wird</translation>
    </message>
    <message>
        <source>Grab the cursor's location after a countdown</source>
        <extracomment>StepForm</extracomment>
        <translation>Nach einem Countdown den Ort des Mauszeigers übernehmen</translation>
    </message>
    <message>
        <source>Move to</source>
        <extracomment>StepKind</extracomment>
        <translation>Bewegen nach</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>StepKind</extracomment>
        <translation>Bewegen</translation>
    </message>
    <message>
        <source>Click</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Klick</translation>
    </message>
    <message>
        <source>Right-click</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Rechtsklick</translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>StepKind</extracomment>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Hold (mouse down)</source>
        <extracomment>StepKind</extracomment>
        <translation>Halten (Maustaste drücken)</translation>
    </message>
    <message>
        <source>Hold</source>
        <extracomment>StepKind</extracomment>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Release (mouse up)</source>
        <extracomment>StepKind</extracomment>
        <translation>Loslassen (Maustaste)</translation>
    </message>
    <message>
        <source>Release</source>
        <extracomment>StepKind</extracomment>
        <translation>Loslassen</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Tippen</translation>
    </message>
    <message>
        <source>Keyboard shortcut</source>
        <extracomment>StepKind</extracomment>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Wait</source>
        <extracomment>StepKind</extracomment>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Switch app</source>
        <extracomment>StepKind</extracomment>
        <translation>Programm wechseln</translation>
    </message>
    <message>
        <source>Switch</source>
        <extracomment>StepKind</extracomment>
        <translation>Wechseln</translation>
    </message>
    <message>
        <source>Section</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Reorder Steps</source>
        <extracomment>StepList</extracomment>
        <translation>Schritte umordnen</translation>
    </message>
    <message>
        <source>Set App</source>
        <extracomment>StepList</extracomment>
        <translation>Programm festlegen</translation>
    </message>
    <message>
        <source>Add a step</source>
        <extracomment>StepListPane</extracomment>
        <translation>Neuer Schritt</translation>
    </message>
    <message>
        <source>Run Live from Here</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Ab hier live ausführen</translation>
    </message>
    <message>
        <source>Expand section</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Abschnitt ausklappen</translation>
    </message>
    <message>
        <source>Collapse section</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Abschnitt einklappen</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Steps</source>
        <extracomment>StepListView</extracomment>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>%1 / %2s</source>
        <extracomment>TimeSlider</extracomment>
        <translation>%1 / %2 s</translation>
    </message>
    <message>
        <source>Go to Start</source>
        <extracomment>TransportBar, DemoCommands</extracomment>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>TransportBar, DemoCommands</extracomment>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>No update feed is configured, so Velvane cannot check for updates.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Es ist keine Adresse für Updates eingerichtet; Velvane kann daher nicht nach Updates suchen.</translation>
    </message>
    <message>
        <source>Velvane %1 is the newest version.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Velvane %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>Velvane %1 is available.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Velvane %1 ist verfügbar.</translation>
    </message>
    <message>
        <source>You have version %1. The download page opens in your browser.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Sie haben Version %1. Die Download-Seite öffnet sich im Browser.</translation>
    </message>
    <message>
        <source>Recording time</source>
        <extracomment>VideoScrubBar</extracomment>
        <translation>Zeit der Aufnahme</translation>
    </message>
    <message>
        <source>Time in the recording</source>
        <extracomment>VideoScrubBar</extracomment>
        <translation>Zeit in der Aufnahme</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>WindowCommands</extracomment>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>There is no connection to an X server.</source>
        <extracomment>X11Camera, X11Screens</extracomment>
        <translation>Es besteht keine Verbindung zu einem X-Server.</translation>
    </message>
    <message>
        <source>The X server stores pixels in another byte order.</source>
        <extracomment>X11Camera</extracomment>
        <translation>Der X-Server speichert Pixel in anderer Byte-Reihenfolge.</translation>
    </message>
    <message>
        <source>The region to record lies outside the display.</source>
        <extracomment>X11Camera</extracomment>
        <translation>Der aufzunehmende Bereich liegt außerhalb des Bildschirms.</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <extracomment>X11CaptureStream</extracomment>
        <translation>Der X-Server ist nicht mehr da.</translation>
    </message>
    <message>
        <source>no display</source>
        <extracomment>X11Desktop</extracomment>
        <translation>kein Bildschirm</translation>
    </message>
    <message>
        <source>X11 display %1</source>
        <extracomment>X11Desktop</extracomment>
        <translation>X11-Bildschirm %1</translation>
    </message>
    <message>
        <source>%1, with a compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, mit Compositor</translation>
    </message>
    <message>
        <source>%1, without a compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, ohne Compositor</translation>
    </message>
    <message>
        <source>Window manager</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Fenstermanager</translation>
    </message>
    <message>
        <source>none that can be asked (EWMH)</source>
        <extracomment>X11Desktop</extracomment>
        <translation>keiner, der sich befragen lässt (EWMH)</translation>
    </message>
    <message>
        <source>%1, can be asked (EWMH)</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, lässt sich befragen (EWMH)</translation>
    </message>
    <message>
        <source>%1, without %2</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, ohne %2</translation>
    </message>
    <message>
        <source>Switching applications or moving their windows may not work; use another window manager.</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Das Wechseln von Programmen oder das Verschieben ihrer Fenster funktioniert vielleicht nicht; verwenden Sie einen anderen Fenstermanager.</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Wächter</translation>
    </message>
    <message>
        <source>releases what is held if Velvane ends</source>
        <extracomment>X11Desktop</extracomment>
        <translation>lässt los, was gehalten wird, wenn Velvane endet</translation>
    </message>
    <message>
        <source>missing</source>
        <extracomment>X11Desktop</extracomment>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Install Velvane again: velvane-watchdog is not beside it.</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Installieren Sie Velvane neu: velvane-watchdog liegt nicht daneben.</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>X11Desktop</extracomment>
        <translation>läuft</translation>
    </message>
    <message>
        <source>none; none is needed</source>
        <extracomment>X11Desktop</extracomment>
        <translation>keiner; es wird keiner gebraucht</translation>
    </message>
    <message>
        <source>Compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>There is no display.</source>
        <extracomment>X11Desktop, X11InputSynthesizer, X11Listener, X11WindowManager</extracomment>
        <translation>Es gibt keinen Bildschirm.</translation>
    </message>
    <message>
        <source>In a Wayland session only programs that use X11 could be driven: log in with an X11 session instead.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>In einer Wayland-Sitzung ließen sich nur Programme steuern, die X11 verwenden: Melden Sie sich stattdessen mit einer X11-Sitzung an.</translation>
    </message>
    <message>
        <source>This X server lets no program post input: it lacks the XTEST extension.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>Dieser X-Server lässt Programme keine Eingaben senden: Ihm fehlt die Erweiterung XTEST.</translation>
    </message>
    <message>
        <source>velvane-watchdog, which releases what is held if Velvane ends, is missing: install Velvane again.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>velvane-watchdog, das Gehaltenes loslässt, wenn Velvane endet, fehlt: Installieren Sie Velvane neu.</translation>
    </message>
    <message>
        <source>%1 takes a connection to the X server, and there is none.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 braucht eine Verbindung zum X-Server, und es gibt keine.</translation>
    </message>
    <message>
        <source>%1 reaches only X11 windows in a Wayland session. Log in with an X11 session instead.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 erreicht in einer Wayland-Sitzung nur X11-Fenster. Melden Sie sich stattdessen mit einer X11-Sitzung an.</translation>
    </message>
    <message>
        <source>%1 takes what this X server lacks: %2. Enable it in the server, and use a local or trusted connection.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 braucht, was diesem X-Server fehlt: %2. Schalten Sie es im Server ein und verwenden Sie eine lokale oder vertrauenswürdige Verbindung.</translation>
    </message>
    <message>
        <source>%1 is refused by this X server. Use a local or trusted connection.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 wird von diesem X-Server verweigert. Verwenden Sie eine lokale oder vertrauenswürdige Verbindung.</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>Es fehlt nichts.</translation>
    </message>
    <message>
        <source>Only X11 windows can be controlled in a Wayland session. Log in with an X11 session instead.</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>In einer Wayland-Sitzung lassen sich nur X11-Fenster steuern. Melden Sie sich stattdessen mit einer X11-Sitzung an.</translation>
    </message>
    <message>
        <source>No window manager that can be asked (EWMH) is running. Start one.</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>Es läuft kein Fenstermanager, der sich befragen lässt (EWMH). Starten Sie einen.</translation>
    </message>
    <message>
        <source>without a name</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>ohne Namen</translation>
    </message>
    <message>
        <source>damaged property list: line %1, column %2: %3</source>
        <extracomment>XmlReader</extracomment>
        <translation>beschädigte Eigenschaftsliste: Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>the display %1 cannot be opened</source>
        <extracomment>cli</extracomment>
        <translation>der Bildschirm %1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>there is no display to open a window on</source>
        <extracomment>cli</extracomment>
        <translation>es gibt keinen Bildschirm, um ein Fenster zu öffnen</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>std</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <extracomment>std</extracomment>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>std</extracomment>
        <translation>%1 Std. %2 min</translation>
    </message>
    <message>
        <source>About Velvane</source>
        <extracomment>velvane</extracomment>
        <translation>Über Velvane</translation>
    </message>
    <message>
        <source>Velvane %1</source>
        <extracomment>velvane</extracomment>
        <translation>Velvane %1</translation>
    </message>
    <message>
        <source>Scripted screen demonstrations.</source>
        <extracomment>velvane</extracomment>
        <translation>Bildschirm-Demos nach Drehbuch.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Demo</source>
        <extracomment>velvane</extracomment>
        <translation>De&amp;mo</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Schritt</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Wait %1s</source>
        <extracomment>velvane</extracomment>
        <translation>%1 s warten</translation>
    </message>
    <message>
        <source>is a folder</source>
        <extracomment>velvane</extracomment>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <extracomment>velvane</extracomment>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>too large, %1 bytes</source>
        <extracomment>velvane</extracomment>
        <translation>zu groß, %1 Bytes</translation>
    </message>
    <message>
        <source>no such file</source>
        <extracomment>velvane</extracomment>
        <translation>keine solche Datei</translation>
    </message>
    <message>
        <source>Move to (%1, %2)</source>
        <extracomment>velvane</extracomment>
        <translation>Bewegen nach (%1, %2)</translation>
    </message>
    <message>
        <source>Hold mouse down</source>
        <extracomment>velvane</extracomment>
        <translation>Maustaste halten</translation>
    </message>
    <message>
        <source>Release mouse</source>
        <extracomment>velvane</extracomment>
        <translation>Maustaste loslassen</translation>
    </message>
    <message>
        <source>Type "%1"</source>
        <extracomment>velvane</extracomment>
        <translation>„%1“ tippen</translation>
    </message>
    <message>
        <source>Press %1</source>
        <extracomment>velvane</extracomment>
        <translation>%1 drücken</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <extracomment>velvane</extracomment>
        <translation>Zu %1 wechseln</translation>
    </message>
    <message>
        <source>app</source>
        <extracomment>velvane</extracomment>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Driving the mouse and keyboard</source>
        <extracomment>velvane</extracomment>
        <translation>Das Steuern von Maus und Tastatur</translation>
    </message>
    <message>
        <source>Listening to the mouse and keyboard</source>
        <extracomment>velvane</extracomment>
        <translation>Das Mithören von Maus und Tastatur</translation>
    </message>
    <message>
        <source>Taking pictures of the screen</source>
        <extracomment>velvane</extracomment>
        <translation>Das Aufnehmen des Bildschirms</translation>
    </message>
    <message>
        <source>The update feed is not signed.</source>
        <extracomment>velvane</extracomment>
        <translation>Die Update-Liste ist nicht signiert.</translation>
    </message>
    <message>
        <source>The signature of the update feed is wrong.</source>
        <extracomment>velvane</extracomment>
        <translation>Die Signatur der Update-Liste ist falsch.</translation>
    </message>
    <message>
        <source>The update feed is older than one that was read before.</source>
        <extracomment>velvane</extracomment>
        <translation>Die Update-Liste ist älter als eine früher gelesene.</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Nicht aufnehmen</translation>
    </message>
    <message>
        <source>Record Screen</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Record Active Window</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Aktives Fenster aufnehmen</translation>
    </message>
    <message>
        <source>Screen Recording</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Bildschirmaufnahme</translation>
    </message>
    <message>
        <source>Show Mouse Cursor</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Mauszeiger zeigen</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <extracomment>FileCommands</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <extracomment>FileCommands</extracomment>
        <translation>Menü leeren</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <extracomment>FileCommands</extracomment>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>FileCommands</extracomment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>FileCommands</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Velvane demos (*.velvane)</source>
        <extracomment>FilePanel</extracomment>
        <translation>Velvane-Demos (*.velvane)</translation>
    </message>
    <message>
        <source>“%1” already exists.</source>
        <extracomment>FilePanel</extracomment>
        <translation>„%1“ gibt es bereits.</translation>
    </message>
    <message>
        <source>Replacing it loses what it holds.</source>
        <extracomment>FilePanel</extracomment>
        <translation>Beim Ersetzen geht verloren, was darin steht.</translation>
    </message>
    <message>
        <source>Open Demo</source>
        <extracomment>FilePanel</extracomment>
        <translation>Demo öffnen</translation>
    </message>
    <message>
        <source>Save Demo</source>
        <extracomment>FilePanel</extracomment>
        <translation>Demo speichern</translation>
    </message>
    <message>
        <source>The documentation could not be opened.</source>
        <extracomment>HelpCommands</extracomment>
        <translation>Die Dokumentation konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>It is found at %1.</source>
        <extracomment>HelpCommands, UpdaterCommands</extracomment>
        <translation>Sie finden sie unter %1.</translation>
    </message>
    <message>
        <source>Velvane Help</source>
        <extracomment>HelpCommands</extracomment>
        <translation>Velvane-Hilfe</translation>
    </message>
    <message>
        <source>Velvane was installed as a Flatpak, which brings its updates.</source>
        <extracomment>PackageOwner</extracomment>
        <translation>Velvane wurde als Flatpak installiert, das auch die Updates bringt.</translation>
    </message>
    <message>
        <source>Velvane was installed by the package manager, which brings its updates.</source>
        <extracomment>PackageOwner</extracomment>
        <translation>Velvane wurde von der Paketverwaltung installiert, die auch die Updates bringt.</translation>
    </message>
    <message>
        <source>The update feed is malformed.</source>
        <extracomment>Reader</extracomment>
        <translation>Die Update-Liste ist fehlerhaft.</translation>
    </message>
    <message>
        <source>The update feed has no valid “%1”.</source>
        <extracomment>Reader</extracomment>
        <translation>Die Update-Liste hat kein gültiges „%1“.</translation>
    </message>
    <message>
        <source>Session bus</source>
        <extracomment>SessionServices</extracomment>
        <translation>Sitzungsbus</translation>
    </message>
    <message>
        <source>answers</source>
        <extracomment>SessionServices</extracomment>
        <translation>antwortet</translation>
    </message>
    <message>
        <source>none</source>
        <extracomment>SessionServices, cli</extracomment>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>Start Velvane from the desktop, or below dbus-run-session: windows cannot be shared with a running Velvane without it.</source>
        <extracomment>SessionServices</extracomment>
        <translation>Starten Sie Velvane vom Schreibtisch aus oder unter dbus-run-session: Ohne ihn lassen sich Fenster nicht mit einem laufenden Velvane teilen.</translation>
    </message>
    <message>
        <source>Desktop portal</source>
        <extracomment>SessionServices</extracomment>
        <translation>Desktop-Portal</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>SessionServices</extracomment>
        <translation>vorhanden</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the one of your desktop, so that dark and light follow the system.</source>
        <extracomment>SessionServices</extracomment>
        <translation>Installieren Sie xdg-desktop-portal und das Ihres Schreibtischs, damit Hell und Dunkel dem System folgen.</translation>
    </message>
    <message>
        <source>File manager</source>
        <extracomment>SessionServices</extracomment>
        <translation>Dateiverwaltung</translation>
    </message>
    <message>
        <source>shows a file in its folder</source>
        <extracomment>SessionServices</extracomment>
        <translation>zeigt eine Datei in ihrem Ordner</translation>
    </message>
    <message>
        <source>opens a file's folder</source>
        <extracomment>SessionServices</extracomment>
        <translation>öffnet den Ordner einer Datei</translation>
    </message>
    <message>
        <source>none can be asked</source>
        <extracomment>SessionServices</extracomment>
        <translation>keine lässt sich befragen</translation>
    </message>
    <message>
        <source>Install a file manager, and xdg-utils, so that recordings can be shown.</source>
        <extracomment>SessionServices</extracomment>
        <translation>Installieren Sie eine Dateiverwaltung und xdg-utils, damit Aufnahmen gezeigt werden können.</translation>
    </message>
    <message>
        <source>can be started</source>
        <extracomment>SessionServices</extracomment>
        <translation>können gestartet werden</translation>
    </message>
    <message>
        <source>only running ones can be switched to</source>
        <extracomment>SessionServices</extracomment>
        <translation>nur zu laufenden kann gewechselt werden</translation>
    </message>
    <message>
        <source>Start them before a live run, or allow it: %1</source>
        <extracomment>SessionServices</extracomment>
        <translation>Starten Sie sie vor dem Live-Lauf, oder erlauben Sie es: %1</translation>
    </message>
    <message>
        <source>Add Step</source>
        <extracomment>StepCommands</extracomment>
        <translation>Schritt hinzufügen</translation>
    </message>
    <message>
        <source>Recording — Esc to Stop</source>
        <extracomment>StepCommands</extracomment>
        <translation>Aufnahme – Esc hält an</translation>
    </message>
    <message>
        <source>Pick Location on Screen…</source>
        <extracomment>StepCommands</extracomment>
        <translation>Ort am Bildschirm wählen…</translation>
    </message>
    <message>
        <source>The download page could not be opened.</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Die Download-Seite konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Download-Seite öffnen</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Suche nach Updates…</translation>
    </message>
    <message>
        <source>Check for Updates Automatically</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Nach Updates suchen…</translation>
    </message>
    <message>
        <source>Velvane %1 is available: see “Check for Updates…” in the menu “Help”.</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Velvane %1 ist verfügbar: siehe „Nach Updates suchen…“ im Menü „Hilfe“.</translation>
    </message>
    <message>
        <source>Live Backdrop</source>
        <extracomment>ViewCommands</extracomment>
        <translation>Live-Hintergrund</translation>
    </message>
    <message>
        <source>Recording Backdrop</source>
        <extracomment>ViewCommands</extracomment>
        <translation>Aufnahme als Hintergrund</translation>
    </message>
    <message>
        <source>Zoom 4×</source>
        <extracomment>ViewCommands</extracomment>
        <translation>4× vergrößern</translation>
    </message>
    <message>
        <source>lacks %1</source>
        <extracomment>X11Facts</extracomment>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>Enable %1 in the X server: without it %2.</source>
        <extracomment>X11Facts</extracomment>
        <translation>Schalten Sie %1 im X-Server ein: ohne %2.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <extracomment>X11Facts</extracomment>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <extracomment>X11Facts</extracomment>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>Enable XKEYBOARD in the X server: without it nothing is typed as written.</source>
        <extracomment>X11Facts</extracomment>
        <translation>Schalten Sie XKEYBOARD im X-Server ein: Ohne wird nichts so getippt, wie es geschrieben ist.</translation>
    </message>
    <message>
        <source>layout not named</source>
        <extracomment>X11Facts</extracomment>
        <translation>Belegung ohne Namen</translation>
    </message>
    <message>
        <source>layout %1</source>
        <extracomment>X11Facts</extracomment>
        <translation>Belegung %1</translation>
    </message>
    <message>
        <source>Posting</source>
        <extracomment>X11Facts</extracomment>
        <translation>Senden</translation>
    </message>
    <message>
        <source>nothing is clicked or typed</source>
        <extracomment>X11Facts</extracomment>
        <translation>wird nichts geklickt oder getippt</translation>
    </message>
    <message>
        <source>Listening</source>
        <extracomment>X11Facts</extracomment>
        <translation>Mithören</translation>
    </message>
    <message>
        <source>actions are not heard and Esc does not stop a run</source>
        <extracomment>X11Facts</extracomment>
        <translation>werden Aktionen nicht gehört und Esc hält einen Lauf nicht an</translation>
    </message>
    <message>
        <source>Pictures</source>
        <extracomment>X11Facts</extracomment>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>the screen is neither shown nor recorded</source>
        <extracomment>X11Facts</extracomment>
        <translation>wird der Bildschirm weder gezeigt noch aufgenommen</translation>
    </message>
    <message>
        <source>Fast pictures</source>
        <extracomment>X11Facts</extracomment>
        <translation>Schnelle Bilder</translation>
    </message>
    <message>
        <source>pictures of the screen come slowly</source>
        <extracomment>X11Facts</extracomment>
        <translation>kommen Bilder vom Bildschirm langsam</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>X11Facts</extracomment>
        <translation>Bildschirme</translation>
    </message>
    <message>
        <source>several displays are taken for one</source>
        <extracomment>X11Facts</extracomment>
        <translation>gelten mehrere Bildschirme als einer</translation>
    </message>
    <message>
        <source>Usage</source>
        <extracomment>cli</extracomment>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Positionals</source>
        <extracomment>cli</extracomment>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Subcommands</source>
        <extracomment>cli</extracomment>
        <translation>Unterbefehle</translation>
    </message>
    <message>
        <source>Print this help message and exit</source>
        <extracomment>cli</extracomment>
        <translation>Diese Hilfe ausgeben und beenden</translation>
    </message>
    <message>
        <source>Display program version information and exit</source>
        <extracomment>cli</extracomment>
        <translation>Die Version ausgeben und beenden</translation>
    </message>
    <message>
        <source>This Flatpak cannot reach it. Give it the folder: %1</source>
        <extracomment>cli</extracomment>
        <translation>Dieses Flatpak kommt da nicht heran. Geben Sie ihm den Ordner: %1</translation>
    </message>
    <message>
        <source>Write a demo in the binary format, from binary or XML</source>
        <extracomment>cli</extracomment>
        <translation>Eine Demo, binär oder XML, im Binärformat schreiben</translation>
    </message>
    <message>
        <source>The demo to read</source>
        <extracomment>cli</extracomment>
        <translation>Die zu lesende Demo</translation>
    </message>
    <message>
        <source>The file to write; an existing one is replaced</source>
        <extracomment>cli</extracomment>
        <translation>Die zu schreibende Datei; eine vorhandene wird ersetzt</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Read a demo, as a binary or an XML property list, and write it in the
  binary format. Keys that no demo has are left out. OUT is written whole or
  not at all, so it may be IN.

EXAMPLE
  velvane convert tour.xml tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>BESCHREIBUNG
  Liest eine Demo als binäre oder XML-Eigenschaftsliste und schreibt sie im
  Binärformat. Schlüssel, die keine Demo hat, fallen weg. OUT wird ganz oder
  gar nicht geschrieben und darf also IN sein.

BEISPIEL
  velvane convert tour.xml tour.velvane</translation>
    </message>
    <message>
        <source>%1: is not writable</source>
        <extracomment>cli</extracomment>
        <translation>%1: ist nicht beschreibbar</translation>
    </message>
    <message>
        <source>The screen (%1) is larger than the canvas (%2): what lies beyond is recorded at the canvas's edge.</source>
        <extracomment>cli</extracomment>
        <translation>Der Bildschirm (%1) ist größer als die Leinwand (%2): Was jenseits liegt, wird an ihrem Rand aufgenommen.</translation>
    </message>
    <message>
        <source>%1; the recorded steps are in %2</source>
        <extracomment>cli</extracomment>
        <translation>%1; die aufgenommenen Schritte liegen in %2</translation>
    </message>
    <message>
        <source>%1 frames per second</source>
        <extracomment>cli</extracomment>
        <translation>%1 Bilder pro Sekunde</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <extracomment>cli</extracomment>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>picture of %1 × %2</source>
        <extracomment>cli</extracomment>
        <translation>Bild mit %1 × %2</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>cli</extracomment>
        <translation>ja</translation>
    </message>
    <message>
        <source>Total</source>
        <extracomment>cli</extracomment>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Step</source>
        <extracomment>cli</extracomment>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>cli</extracomment>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>cli</extracomment>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>there is no step “%1”</source>
        <extracomment>cli</extracomment>
        <translation>es gibt keinen Schritt „%1“</translation>
    </message>
    <message>
        <source>Say what this session can and cannot do, with remedies</source>
        <extracomment>cli</extracomment>
        <translation>Sagen, was diese Sitzung kann und was nicht, mit Abhilfe</translation>
    </message>
    <message>
        <source>Print one JSON array instead of lines</source>
        <extracomment>cli</extracomment>
        <translation>Statt Zeilen eine JSON-Liste ausgeben</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Say what this session can and cannot do, a line for each capability, with
  the remedy below what is missing. Nothing is changed and nothing is shown on
  the screen.

JSON
  An object for each capability: what, works, state, remedy or null.

EXAMPLE
  velvane doctor --json | jq -r '.[] | select(.works | not) | .remedy'</source>
        <extracomment>cli</extracomment>
        <translation>BESCHREIBUNG
  Sagt, was diese Sitzung kann und was nicht: eine Zeile für jede Fähigkeit,
  darunter die Abhilfe, wo etwas fehlt. Nichts wird geändert, und nichts
  erscheint auf dem Bildschirm.

JSON
  Ein Objekt für jede Fähigkeit: what, works, state, remedy oder null.

BEISPIEL
  velvane doctor --json | jq -r '.[] | select(.works | not) | .remedy'</translation>
    </message>
    <message>
        <source>frames</source>
        <extracomment>cli</extracomment>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>%1: the movie would replace the demo</source>
        <extracomment>cli</extracomment>
        <translation>%1: der Film würde die Demo ersetzen</translation>
    </message>
    <message>
        <source>Export cancelled; %1 holds what was done.</source>
        <extracomment>cli</extracomment>
        <translation>Export abgebrochen; %1 enthält, was fertig war.</translation>
    </message>
    <message>
        <source>Render a demo to a movie</source>
        <extracomment>cli</extracomment>
        <translation>Eine Demo als Film rendern</translation>
    </message>
    <message>
        <source>The demo to render</source>
        <extracomment>cli</extracomment>
        <translation>Die zu rendernde Demo</translation>
    </message>
    <message>
        <source>The movie to write</source>
        <extracomment>cli</extracomment>
        <translation>Der zu schreibende Film</translation>
    </message>
    <message>
        <source>When the export fails, print the reason on a second line</source>
        <extracomment>cli</extracomment>
        <translation>Schlägt der Export fehl, den Grund in einer zweiten Zeile ausgeben</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Render a demo to an H.264 movie in an MPEG-4 file, of the canvas's size and
  the demo's frame rate. A file at MP4 is replaced. Progress goes to standard
  error: a bar on a terminal, otherwise a line for every tenth.

  Ctrl-C closes the movie with the frames done so far, so that it plays, and
  ends with exit status 130.

EXAMPLE
  velvane export tour.velvane tour.mp4</source>
        <extracomment>cli</extracomment>
        <translation>BESCHREIBUNG
  Rendert eine Demo als H.264-Film in einer MPEG-4-Datei, in der Größe der
  Leinwand und mit der Bildrate der Demo. Eine Datei an der Stelle MP4 wird
  ersetzt. Der Fortschritt geht auf die Fehlerausgabe: ein Balken am Terminal,
  sonst eine Zeile für jedes Zehntel.

  Strg-C schließt den Film mit den fertigen Bildern, sodass er abspielbar ist,
  und endet mit dem Status 130.

BEISPIEL
  velvane export tour.velvane tour.mp4</translation>
    </message>
    <message>
        <source>%1: the picture would replace the demo</source>
        <extracomment>cli</extracomment>
        <translation>%1: das Bild würde die Demo ersetzen</translation>
    </message>
    <message>
        <source>%1: a canvas of %2 × %3 cannot be drawn</source>
        <extracomment>cli</extracomment>
        <translation>%1: eine Leinwand von %2 × %3 kann nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>Render one moment of a demo to a picture</source>
        <extracomment>cli</extracomment>
        <translation>Einen Moment einer Demo als Bild rendern</translation>
    </message>
    <message>
        <source>The demo</source>
        <extracomment>cli</extracomment>
        <translation>Die Demo</translation>
    </message>
    <message>
        <source>The moment in seconds</source>
        <extracomment>cli</extracomment>
        <translation>Der Moment in Sekunden</translation>
    </message>
    <message>
        <source>The picture to write</source>
        <extracomment>cli</extracomment>
        <translation>Das zu schreibende Bild</translation>
    </message>
    <message>
        <source>Make it no wider and no higher than this</source>
        <extracomment>cli</extracomment>
        <translation>Nicht breiter und höher als dies machen</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Render one moment of a demo to a PNG picture of the canvas's size: what a
  movie shows at that moment. A moment outside the demo shows its first or its
  last instant. With --size, a larger picture is scaled down.

EXAMPLES
  velvane frame tour.velvane --at 2.5 --output still.png
  velvane frame tour.velvane --at 0 --size 256 --output thumbnail.png</source>
        <extracomment>cli</extracomment>
        <translation>BESCHREIBUNG
  Rendert einen Moment einer Demo als PNG-Bild in der Größe der Leinwand: was
  ein Film in diesem Moment zeigt. Ein Moment außerhalb der Demo zeigt ihren
  ersten oder letzten Augenblick. Mit --size wird ein größeres Bild
  verkleinert.

BEISPIELE
  velvane frame tour.velvane --at 2.5 --output still.png
  velvane frame tour.velvane --at 0 --size 256 --output thumbnail.png</translation>
    </message>
    <message>
        <source>Show what a demo holds and when it happens</source>
        <extracomment>cli</extracomment>
        <translation>Zeigen, was eine Demo enthält und wann es geschieht</translation>
    </message>
    <message>
        <source>The demo to show</source>
        <extracomment>cli</extracomment>
        <translation>Die zu zeigende Demo</translation>
    </message>
    <message>
        <source>Print one JSON object instead of a table</source>
        <extracomment>cli</extracomment>
        <translation>Statt einer Tabelle ein JSON-Objekt ausgeben</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Show a demo: its settings, its steps as the step list has them, and when
  each begins and ends. Times are seconds.

JSON
  version, fps, canvasSize [width, height], startPoint [x, y], hasBackground,
  hasRecording, total, steps, segments.
  A step: id, kind, point [x, y], text, duration, pauseAfter, keyCode,
  modifiers, centerWindow, collapsed, recordedOffset or null, number or null,
  summary, shortcutDisplay, visible.
  A segment: step (index in steps), id, start, end, actionDuration, startPos,
  endPos, heldEntering.

EXAMPLE
  velvane inspect tour.velvane --json | jq .total</source>
        <extracomment>cli</extracomment>
        <translation>BESCHREIBUNG
  Zeigt eine Demo: ihre Einstellungen, ihre Schritte, wie die Schrittliste sie
  hat, und wann jeder beginnt und endet. Zeiten sind Sekunden.

JSON
  version, fps, canvasSize [Breite, Höhe], startPoint [x, y], hasBackground,
  hasRecording, total, steps, segments.
  Ein Schritt: id, kind, point [x, y], text, duration, pauseAfter, keyCode,
  modifiers, centerWindow, collapsed, recordedOffset oder null, number oder
  null, summary, shortcutDisplay, visible.
  Ein Segment: step (Index in steps), id, start, end, actionDuration,
  startPos, endPos, heldEntering.

BEISPIEL
  velvane inspect tour.velvane --json | jq .total</translation>
    </message>
    <message>
        <source>%1: the file exists; --force replaces it</source>
        <extracomment>cli</extracomment>
        <translation>%1: die Datei existiert; --force ersetzt sie</translation>
    </message>
    <message>
        <source>Write a new demo with the defaults</source>
        <extracomment>cli</extracomment>
        <translation>Eine neue Demo mit den Vorgaben schreiben</translation>
    </message>
    <message>
        <source>The file to write, usually NAME.velvane</source>
        <extracomment>cli</extracomment>
        <translation>Die zu schreibende Datei, meist NAME.velvane</translation>
    </message>
    <message>
        <source>Replace the file if it exists</source>
        <extracomment>cli</extracomment>
        <translation>Die Datei ersetzen, falls sie existiert</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Write a new demo with the defaults: a canvas of 1280 × 800, 60 frames a
  second, the cursor in the middle, and one step that switches to no
  application yet.

EXAMPLE
  velvane new tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>BESCHREIBUNG
  Schreibt eine neue Demo mit den Vorgaben: eine Leinwand von 1280 × 800,
  60 Bilder pro Sekunde, den Zeiger in der Mitte und einen Schritt, der noch
  zu keinem Programm wechselt.

BEISPIEL
  velvane new tour.velvane</translation>
    </message>
    <message>
        <source>Record real mouse and keyboard actions into a demo</source>
        <extracomment>cli</extracomment>
        <translation>Echte Maus- und Tastaturaktionen in eine Demo aufnehmen</translation>
    </message>
    <message>
        <source>The demo that the steps are appended to</source>
        <extracomment>cli</extracomment>
        <translation>Die Demo, an die die Schritte angehängt werden</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Record what is done with the mouse and the keyboard, after a countdown of
  2.1 seconds, until Esc is pressed, whatever has the keyboard; Ctrl-C and
  SIGTERM end it too. Nothing is kept from the programs in use. The steps are
  appended to the demo, and the demo is saved.

  The outcome goes to standard output. The exit status is 0, also when nothing
  was recorded and the demo is left as it was, and 1 when it could not begin or
  the demo could not be saved.

EXAMPLE
  velvane new tour.velvane &amp;&amp; velvane record tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>BESCHREIBUNG
  Nimmt auf, was mit Maus und Tastatur geschieht, nach einem Countdown von
  2,1 Sekunden und bis Esc gedrückt wird, wo auch immer die Tastatur ist; auch
  Strg-C und SIGTERM beenden es. Den benutzten Programmen wird nichts
  vorenthalten. Die Schritte werden an die Demo angehängt, und die Demo wird
  gespeichert.

  Das Ergebnis geht auf die Standardausgabe. Der Status ist 0, auch wenn nichts
  aufgenommen wurde und die Demo blieb, wie sie war, und 1, wenn es nicht
  beginnen oder die Demo nicht gespeichert werden konnte.

BEISPIEL
  velvane new tour.velvane &amp;&amp; velvane record tour.velvane</translation>
    </message>
    <message>
        <source>Perform a demo on the real desktop</source>
        <extracomment>cli</extracomment>
        <translation>Eine Demo auf dem echten Bildschirm ausführen</translation>
    </message>
    <message>
        <source>The demo to perform</source>
        <extracomment>cli</extracomment>
        <translation>Die auszuführende Demo</translation>
    </message>
    <message>
        <source>Begin with this step: an id or a number</source>
        <extracomment>cli</extracomment>
        <translation>Mit diesem Schritt beginnen: Kennung oder Nummer</translation>
    </message>
    <message>
        <source>When switching to an application, hide all others</source>
        <extracomment>cli</extracomment>
        <translation>Beim Wechsel zu einem Programm alle anderen ausblenden</translation>
    </message>
    <message>
        <source>Record: off, screen or window</source>
        <extracomment>cli</extracomment>
        <translation>Aufnehmen: off, screen oder window</translation>
    </message>
    <message>
        <source>Leave the pointer out of the recording</source>
        <extracomment>cli</extracomment>
        <translation>Den Mauszeiger nicht mit aufnehmen</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <extracomment>cli</extracomment>
        <translation>Sofort beginnen</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Perform a demo's steps with the real mouse and keyboard, after a countdown of
  2.4 seconds. Esc stops it, whatever has the keyboard; so do Ctrl-C and
  SIGTERM. Nothing is left pressed.

  STEP is a step's id or its number, as “velvane inspect” shows them. The
  cursor then begins where the demo would have left it.

  The outcome goes to standard output, and so does the path of the movie of a
  recorded run, below it. Movies are put into Movies/Velvane in the home
  folder. With “window” what the window of the demo's one application covers
  is recorded; where there is none, or where the demo switches between
  several, the whole screen is. The exit status is 0 when the demo was
  performed to its end and 1 when it was stopped or could not begin.

EXAMPLE
  velvane run tour.velvane --from 4 --hide-others</source>
        <extracomment>cli</extracomment>
        <translation>BESCHREIBUNG
  Führt die Schritte einer Demo nach einem Countdown von 2,4 Sekunden mit der
  echten Maus und Tastatur aus. Esc hält an, wo auch immer die Tastatur ist;
  ebenso Strg-C und SIGTERM. Nichts bleibt gedrückt.

  STEP ist die Kennung oder die Nummer eines Schritts, wie
  „velvane inspect“ sie zeigt. Der Zeiger beginnt dann dort, wo die Demo ihn
  gelassen hätte.

  Das Ergebnis geht auf die Standardausgabe, darunter der Pfad des Films eines
  aufgenommenen Laufs. Filme kommen nach Movies/Velvane im persönlichen Ordner.
  Mit „window“ wird aufgenommen, was das Fenster des einzigen Programms der Demo
  bedeckt; gibt es keins oder wechselt die Demo zwischen mehreren, der ganze
  Bildschirm. Der Status ist 0, wenn die Demo bis zum Ende lief, und 1, wenn sie
  angehalten wurde oder nicht beginnen konnte.

BEISPIEL
  velvane run tour.velvane --from 4 --hide-others</translation>
    </message>
    <message>
        <source>Display server</source>
        <extracomment>cli</extracomment>
        <translation>Anzeigeserver</translation>
    </message>
    <message>
        <source>X11 (%1), which does not answer</source>
        <extracomment>cli</extracomment>
        <translation>X11 (%1), antwortet nicht</translation>
    </message>
    <message>
        <source>Start this in the desktop session, where DISPLAY and XAUTHORITY are right.</source>
        <extracomment>cli</extracomment>
        <translation>Starten Sie dies in der Desktop-Sitzung, wo DISPLAY und XAUTHORITY stimmen.</translation>
    </message>
    <message>
        <source>Rendering needs none; the editor does: start it in a desktop session.</source>
        <extracomment>cli</extracomment>
        <translation>Das Rendern braucht keinen, der Editor schon: Starten Sie ihn in einer Desktop-Sitzung.</translation>
    </message>
    <message>
        <source>works</source>
        <extracomment>cli</extracomment>
        <translation>geht</translation>
    </message>
    <message>
        <source>not here</source>
        <extracomment>cli</extracomment>
        <translation>geht hier nicht</translation>
    </message>
    <message>
        <source>Caption font</source>
        <extracomment>cli</extracomment>
        <translation>Schrift der Titel</translation>
    </message>
    <message>
        <source>%1, semibold</source>
        <extracomment>cli</extracomment>
        <translation>%1, halbfett</translation>
    </message>
    <message>
        <source>Inter is missing, another sans-serif stands in</source>
        <extracomment>cli</extracomment>
        <translation>Inter fehlt, eine andere serifenlose springt ein</translation>
    </message>
    <message>
        <source>Install %1.</source>
        <extracomment>cli</extracomment>
        <translation>Installieren Sie %1.</translation>
    </message>
    <message>
        <source>no font has all of %1</source>
        <extracomment>cli</extracomment>
        <translation>keine Schrift hat alle von %1</translation>
    </message>
    <message>
        <source>Backdrop pictures</source>
        <extracomment>cli</extracomment>
        <translation>Hintergrundbilder</translation>
    </message>
    <message>
        <source>Session</source>
        <extracomment>cli</extracomment>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Log in with an X11 session: in a Wayland session demos can be composed and rendered, not run or recorded.</source>
        <extracomment>cli</extracomment>
        <translation>Melden Sie sich mit einer X11-Sitzung an: In einer Wayland-Sitzung lassen sich Demos verfassen und rendern, aber nicht ausführen oder aufnehmen.</translation>
    </message>
    <message>
        <source>not told</source>
        <extracomment>cli</extracomment>
        <translation>nicht genannt</translation>
    </message>
    <message>
        <source>Recordings</source>
        <extracomment>cli</extracomment>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>%1, %2 free</source>
        <extracomment>cli</extracomment>
        <translation>%1, %2 frei</translation>
    </message>
    <message>
        <source>Make room there: a recording ends when the disk is full.</source>
        <extracomment>cli</extracomment>
        <translation>Schaffen Sie dort Platz: Eine Aufnahme endet, wenn der Datenträger voll ist.</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <extracomment>cli</extracomment>
        <translation>%1 ist nicht beschreibbar</translation>
    </message>
    <message>
        <source>Make %1 a folder that you may write to.</source>
        <extracomment>cli</extracomment>
        <translation>Machen Sie %1 zu einem Ordner, in den Sie schreiben dürfen.</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>cli</extracomment>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Set LANG to a UTF-8 locale, such as C.UTF-8, so that file names and texts are read as they are written.</source>
        <extracomment>cli</extracomment>
        <translation>Setzen Sie LANG auf ein UTF-8-Gebietsschema wie C.UTF-8, damit Dateinamen und Texte so gelesen werden, wie sie geschrieben sind.</translation>
    </message>
    <message>
        <source>Input posting</source>
        <extracomment>cli</extracomment>
        <translation>Eingaben senden</translation>
    </message>
    <message>
        <source>Input listening</source>
        <extracomment>cli</extracomment>
        <translation>Eingaben mithören</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <extracomment>cli</extracomment>
        <translation>Bildschirmbilder</translation>
    </message>
    <message>
        <source>H.264 encoder</source>
        <extracomment>cli</extracomment>
        <translation>H.264-Encoder</translation>
    </message>
    <message>
        <source>Movie files</source>
        <extracomment>cli</extracomment>
        <translation>Filmdateien</translation>
    </message>
    <message>
        <source>Shortcut glyphs</source>
        <extracomment>cli</extracomment>
        <translation>Tastenzeichen</translation>
    </message>
    <message>
        <source>Emoji</source>
        <extracomment>cli</extracomment>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Show what a demo shows at given moments</source>
        <extracomment>cli</extracomment>
        <translation>Zeigen, was eine Demo zu gegebenen Momenten zeigt</translation>
    </message>
    <message>
        <source>A moment in seconds; may be given several times</source>
        <extracomment>cli</extracomment>
        <translation>Ein Moment in Sekunden; mehrfach möglich</translation>
    </message>
    <message>
        <source>Length in seconds of the movie recorded with the steps; gives videoTime</source>
        <extracomment>cli</extracomment>
        <translation>Länge in Sekunden des mit den Schritten aufgenommenen Films; ergibt videoTime</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Print what a demo shows at given moments, as a JSON array with an object
  for each moment: time, cursor [x, y], ripple or null, press, held, caption or
  null, videoTime or null. Moments outside the demo show its first or its last
  instant.

EXAMPLE
  velvane state tour.velvane --at 0 --at 2.5</source>
        <extracomment>cli</extracomment>
        <translation>BESCHREIBUNG
  Gibt aus, was eine Demo zu gegebenen Momenten zeigt, als JSON-Liste mit einem
  Objekt für jeden Moment: time, cursor [x, y], ripple oder null, press, held,
  caption oder null, videoTime oder null. Momente außerhalb der Demo zeigen
  ihren ersten oder letzten Augenblick.

BEISPIEL
  velvane state tour.velvane --at 0 --at 2.5</translation>
    </message>
</context>
</TS>
