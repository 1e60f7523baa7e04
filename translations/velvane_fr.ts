<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Velvane</name>
    <message>
        <source>● Recording — Esc to stop</source>
        <extracomment>ActionRecorder, RecordActionsController</extracomment>
        <translation>● Enregistrement — Échap pour arrêter</translation>
    </message>
    <message>
        <source>Add %1</source>
        <extracomment>AddStepGrid, StepList</extracomment>
        <translation>Ajouter %1</translation>
    </message>
    <message>
        <source>Choose the application to bring to the front</source>
        <extracomment>AppMenu</extracomment>
        <translation>Choisir l’application à amener au premier plan</translation>
    </message>
    <message>
        <source>Choose app…</source>
        <extracomment>AppMenu</extracomment>
        <translation>Choisir une app…</translation>
    </message>
    <message>
        <source>Running</source>
        <extracomment>AppMenu</extracomment>
        <translation>En cours d’exécution</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>AppMenu, SessionServices</extracomment>
        <translation>Applications</translation>
    </message>
    <message>
        <source>No applications found</source>
        <extracomment>AppMenu</extracomment>
        <translation>Aucune application trouvée</translation>
    </message>
    <message>
        <source>Unsaved changes could not be kept: %1.</source>
        <extracomment>Autosave</extracomment>
        <translation>Les modifications non enregistrées n’ont pas pu être conservées : %1.</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Autosave, RestorePanel</extracomment>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>No recording frame to freeze yet.</source>
        <extracomment>BackdropController</extracomment>
        <translation>Aucune image de l’enregistrement à figer pour l’instant.</translation>
    </message>
    <message>
        <source>No live frame yet — grant Screen Recording first.</source>
        <extracomment>BackdropController</extracomment>
        <translation>Pas encore d’image en direct — autorisez d’abord l’enregistrement de l’écran.</translation>
    </message>
    <message>
        <source>Freeze Frame</source>
        <extracomment>BackdropController</extracomment>
        <translation>Figer l’image</translation>
    </message>
    <message>
        <source>damaged property list: %1</source>
        <extracomment>BinaryObjects</extracomment>
        <translation>liste de propriétés endommagée : %1</translation>
    </message>
    <message>
        <source>there are no texts in “%1”, only in %2</source>
        <extracomment>CLI</extracomment>
        <translation>il n’y a pas de textes en « %1 », seulement en %2</translation>
    </message>
    <message>
        <source>“%1” is not a finite number</source>
        <extracomment>CLI</extracomment>
        <translation>« %1 » n’est pas un nombre fini</translation>
    </message>
    <message>
        <source>Move Target</source>
        <extracomment>CanvasController, FieldEditing</extracomment>
        <translation>Déplacer la cible</translation>
    </message>
    <message>
        <source>Add Waypoint</source>
        <extracomment>CanvasController</extracomment>
        <translation>Ajouter un point de passage</translation>
    </message>
    <message>
        <source>Added waypoint at (%1, %2).</source>
        <extracomment>CanvasController</extracomment>
        <translation>Point de passage ajouté en (%1, %2).</translation>
    </message>
    <message>
        <source>Nudge Target</source>
        <extracomment>CanvasController</extracomment>
        <translation>Décaler la cible</translation>
    </message>
    <message>
        <source>Move Start</source>
        <extracomment>CanvasController, FieldEditing</extracomment>
        <translation>Déplacer le départ</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>CanvasHint, EditorToolBar</extracomment>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Show your live screen as the backdrop</source>
        <extracomment>CanvasHint, EditorToolBar</extracomment>
        <translation>Afficher l’écran en direct comme arrière-plan</translation>
    </message>
    <message>
        <source>Record</source>
        <extracomment>CanvasHint, StepListPane</extracomment>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Record real actions and append them as steps</source>
        <extracomment>CanvasHint, StepListPane</extracomment>
        <translation>Enregistrer des actions réelles et les ajouter comme étapes</translation>
    </message>
    <message>
        <source>Add a step above, or click the preview to drop a Move waypoint. Turn on Live for your real screen, then Freeze to pick targets against a still. Press Z to magnify.</source>
        <extracomment>CanvasHint, InspectorPane</extracomment>
        <translation>Ajoutez une étape ci-dessus ou cliquez dans l’aperçu pour placer un point de passage. Activez Direct pour voir votre écran réel, puis Figer pour choisir les cibles sur une image fixe. Z agrandit.</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>CanvasMarks, DemoSettingsForm, cli</extracomment>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Scripted screen demonstrations: a demo is a list of steps (move, click,
type, shortcut, wait and more) over a picture of the screen, rendered to an
H.264 movie or performed on the real desktop.</source>
        <extracomment>CommandLine</extracomment>
        <translation>Démonstrations d’écran scénarisées : une démo est une liste d’étapes (aller,
clic, saisie, raccourci, attente et plus) sur une image de l’écran, rendue en
film H.264 ou exécutée sur le vrai bureau.</translation>
    </message>
    <message>
        <source>Demos to open in the editor</source>
        <extracomment>CommandLine</extracomment>
        <translation>Démos à ouvrir dans l’éditeur</translation>
    </message>
    <message>
        <source>Open them in a process of its own, even when Velvane runs already</source>
        <extracomment>CommandLine</extracomment>
        <translation>Les ouvrir dans un processus à part, même si Velvane est déjà lancé</translation>
    </message>
    <message>
        <source>The language of all texts, e.g. de</source>
        <extracomment>CommandLine</extracomment>
        <translation>La langue de tous les textes, p. ex. de</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>CommandLine, cli</extracomment>
        <translation>Options</translation>
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
        <translation>CODE DE SORTIE
  0  réussite
  1  échec, avec une ligne sur la sortie d’erreur ; une exécution arrêtée
  2  mauvais usage
  130  une exportation arrêtée par Ctrl-C

Les résultats vont sur la sortie standard, les messages et la progression sur
la sortie d’erreur. « velvane SUBCOMMAND --help » explique chaque sous-commande.</translation>
    </message>
    <message>
        <source>(see velvane --help)</source>
        <extracomment>CommandLine, cli</extracomment>
        <translation>(voir velvane --help)</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <extracomment>CommandLine</extracomment>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>standard output cannot be written to</source>
        <extracomment>CommandLine</extracomment>
        <translation>impossible d’écrire sur la sortie standard</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <extracomment>DemoDocument</extracomment>
        <translation>ne peut pas être écrit : %1</translation>
    </message>
    <message>
        <source>Change Canvas</source>
        <extracomment>DemoSettings, FieldEditing</extracomment>
        <translation>Modifier le canevas</translation>
    </message>
    <message>
        <source>“%1” is not a file.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>« %1 » n’est pas un fichier.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>« %1 » ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>“%1” is not a picture that Velvane can read.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>« %1 » n’est pas une image que Velvane sait lire.</translation>
    </message>
    <message>
        <source>Set Backdrop</source>
        <extracomment>DemoSettings</extracomment>
        <translation>Définir l’arrière-plan</translation>
    </message>
    <message>
        <source>Remove Backdrop</source>
        <extracomment>DemoSettings</extracomment>
        <translation>Supprimer l’arrière-plan</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>L</translation>
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
        <translation>Démo</translation>
    </message>
    <message>
        <source>Rate</source>
        <extracomment>DemoSettingsForm, cli</extracomment>
        <translation>Cadence</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Cadence d’images</translation>
    </message>
    <message>
        <source>fps</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>i/s</translation>
    </message>
    <message>
        <source>Start X</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Départ X</translation>
    </message>
    <message>
        <source>Start Y</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Départ Y</translation>
    </message>
    <message>
        <source>Canvas</source>
        <extracomment>DemoSettingsForm, cli</extracomment>
        <translation>Canevas</translation>
    </message>
    <message>
        <source>Canvas width</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Largeur du canevas</translation>
    </message>
    <message>
        <source>Canvas height</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Hauteur du canevas</translation>
    </message>
    <message>
        <source>Make the canvas as large as the primary display</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Donner au canevas la taille de l’écran principal</translation>
    </message>
    <message>
        <source>Match Screen</source>
        <extracomment>DemoSettingsForm, EditorWindow</extracomment>
        <translation>Comme l’écran</translation>
    </message>
    <message>
        <source>No display was found.</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Aucun écran trouvé.</translation>
    </message>
    <message>
        <source>Picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Image</translation>
    </message>
    <message>
        <source>Backdrop picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Image d’arrière-plan</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose a picture as the backdrop</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Choisir une image d’arrière-plan</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Remove the backdrop picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Supprimer l’image d’arrière-plan</translation>
    </message>
    <message>
        <source>Choose Backdrop</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Choisir l’arrière-plan</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>There is no backdrop picture.</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Il n’y a pas d’image d’arrière-plan.</translation>
    </message>
    <message>
        <source>Export to Video…</source>
        <extracomment>DocumentCommands</extracomment>
        <translation>Exporter en vidéo…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <extracomment>Documents</extracomment>
        <translation>« %1 » ne peut pas être ouvert : %2.</translation>
    </message>
    <message>
        <source>The demo's picture cannot be read; saving leaves it out.</source>
        <extracomment>Documents</extracomment>
        <translation>L’image de la démo ne peut pas être lue ; l’enregistrement l’omettra.</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>EditCommands</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>EditCommands</extracomment>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <extracomment>EditCommands, SeveralStepsForm, StepListPane</extracomment>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Select All</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Freeze</source>
        <extracomment>EditorToolBar, ViewCommands</extracomment>
        <translation>Figer</translation>
    </message>
    <message>
        <source>Recording</source>
        <extracomment>EditorToolBar, cli</extracomment>
        <translation>Enreg.</translation>
    </message>
    <message>
        <source>Freeze the current frame so you can pick targets against a still</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Figer l’image actuelle pour choisir les cibles sur une image fixe</translation>
    </message>
    <message>
        <source>Turn on Live or Recording first.</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Activez d’abord Direct ou Enreg.</translation>
    </message>
    <message>
        <source>Play the captured screen recording as the backdrop</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Lire l’enregistrement de l’écran comme arrière-plan</translation>
    </message>
    <message>
        <source>Magnify the canvas 4× (Z)</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Agrandir le canevas 4× (Z)</translation>
    </message>
    <message>
        <source>Run options</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Options d’exécution</translation>
    </message>
    <message>
        <source>Hide other apps during run</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Masquer les autres apps pendant l’exécution</translation>
    </message>
    <message>
        <source>Show mouse cursor</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Afficher le pointeur de la souris</translation>
    </message>
    <message>
        <source>Recording mode</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Mode d’enregistrement</translation>
    </message>
    <message>
        <source>Don't record</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Record screen</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Enregistrer l’écran</translation>
    </message>
    <message>
        <source>Record active window</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Enregistrer la fenêtre active</translation>
    </message>
    <message>
        <source>Active window needs a single-app flow</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>La fenêtre active exige un parcours à une seule app</translation>
    </message>
    <message>
        <source>Run Live</source>
        <extracomment>EditorToolBar, DemoCommands</extracomment>
        <translation>Exécuter en direct</translation>
    </message>
    <message>
        <source>Drive the real cursor through these steps</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Piloter le vrai pointeur à travers ces étapes</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Sans titre %1</translation>
    </message>
    <message>
        <source>“%1” is open in another window.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>« %1 » est ouvert dans une autre fenêtre.</translation>
    </message>
    <message>
        <source>Choose another name, or close that window first.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Choisissez un autre nom ou fermez d’abord cette fenêtre.</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>%1 enregistré.</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>« %1 » n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>It %1. The demo is still open here with all your changes.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Le fichier %1. La démo est toujours ouverte ici avec toutes vos modifications.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <extracomment>EditorWindow, FileCommands, FilePanel</extracomment>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>EditorWindow, ExportProgressView, FilePanel</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>“%1” was changed by another program since it was opened or saved here.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>« %1 » a été modifié par un autre programme depuis son ouverture ou son enregistrement ici.</translation>
    </message>
    <message>
        <source>Replacing it loses what the other program saved.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Le remplacer fait perdre ce que l’autre programme a enregistré.</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>EditorWindow, FilePanel</extracomment>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>“%1” was moved or deleted; saving writes it again.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>« %1 » a été déplacé ou supprimé ; l’enregistrer le recrée.</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>« %1 » a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>Reloading it can be undone. If you keep your version, saving asks before it replaces the other.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Le rechargement peut être annulé. Si vous gardez votre version, l’enregistrement demandera confirmation avant de remplacer l’autre.</translation>
    </message>
    <message>
        <source>Reload</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Keep My Version</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Garder ma version</translation>
    </message>
    <message>
        <source>The screen is larger than the canvas.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>L’écran est plus grand que le canevas.</translation>
    </message>
    <message>
        <source>The screen has %1 points, the canvas %2. What you do beyond the canvas is recorded at its edge.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>L’écran fait %1 points, le canevas %2. Ce que vous faites hors du canevas est enregistré à son bord.</translation>
    </message>
    <message>
        <source>Keep Canvas</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Garder le canevas</translation>
    </message>
    <message>
        <source>Do you want to save the changes to “%1”?</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Voulez-vous enregistrer les modifications de « %1 » ?</translation>
    </message>
    <message>
        <source>Your changes are lost if you don't save them.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Vos modifications seront perdues si vous ne les enregistrez pas.</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>EditorWindow, FileCommands</extracomment>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Don't Save</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>“%1” is still being exported.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>« %1 » est encore en cours d’exportation.</translation>
    </message>
    <message>
        <source>Closing the demo stops the export before its movie is whole.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Fermer la démo arrête l’exportation avant que son film soit complet.</translation>
    </message>
    <message>
        <source>Stop Export</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Arrêter l’exportation</translation>
    </message>
    <message>
        <source>The recording backdrop is only for the preview: the movie shows the demo's still backdrop.</source>
        <extracomment>ExportController</extracomment>
        <translation>L’enregistrement en arrière-plan ne sert qu’à l’aperçu : le film montre l’arrière-plan fixe de la démo.</translation>
    </message>
    <message>
        <source>Exported to %1.</source>
        <extracomment>ExportController, cli</extracomment>
        <translation>Exporté vers %1.</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <extracomment>ExportController, cli</extracomment>
        <translation>Échec de l’exportation : %1</translation>
    </message>
    <message>
        <source>Export cancelled.</source>
        <extracomment>ExportController</extracomment>
        <translation>Exportation annulée.</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed. (Velvane.ExportError error %1.)</source>
        <extracomment>ExportError</extracomment>
        <translation>L’opération n’a pas pu s’achever. (Velvane.ExportError erreur %1.)</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <extracomment>ExportPanel</extracomment>
        <translation>Exporter en vidéo</translation>
    </message>
    <message>
        <source>MPEG-4 movies (*.mp4)</source>
        <extracomment>ExportPanel</extracomment>
        <translation>Films MPEG-4 (*.mp4)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>ExportPanel</extracomment>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Save in:</source>
        <extracomment>ExportPanel, FilePanel</extracomment>
        <translation>Enregistrer dans :</translation>
    </message>
    <message>
        <source>Stop the export; the movie keeps what is done</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>Arrêter l’exportation ; le film garde ce qui est fait</translation>
    </message>
    <message>
        <source>Cancel the export</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>Annuler l’exportation</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>%1 s restantes</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>%1 min restantes</translation>
    </message>
    <message>
        <source>Exporting, %1 %2</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>Exportation, %1 %2</translation>
    </message>
    <message>
        <source>No movie is %1 × %2 pixels large.</source>
        <extracomment>Exporter</extracomment>
        <translation>Aucun film ne mesure %1 × %2 pixels.</translation>
    </message>
    <message>
        <source>The demo is too long for a movie.</source>
        <extracomment>Exporter</extracomment>
        <translation>La démo est trop longue pour un film.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>L’adresse du flux de mises à jour n’est pas sécurisée.</translation>
    </message>
    <message>
        <source>This system has no secure connections to check for updates with.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Ce système n’offre pas de connexion sécurisée pour rechercher des mises à jour.</translation>
    </message>
    <message>
        <source>The update server takes too long to answer.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Le serveur de mises à jour met trop de temps à répondre.</translation>
    </message>
    <message>
        <source>The update feed is longer than %1.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Le flux de mises à jour dépasse %1.</translation>
    </message>
    <message>
        <source>The update server %1 could not prove its identity.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Le serveur de mises à jour %1 n’a pas pu prouver son identité.</translation>
    </message>
    <message>
        <source>The update server redirects too often.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Le serveur de mises à jour redirige trop souvent.</translation>
    </message>
    <message>
        <source>The update server redirects to an address that is not secure.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Le serveur de mises à jour redirige vers une adresse non sécurisée.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Le serveur de mises à jour a répondu avec l’état %1.</translation>
    </message>
    <message>
        <source>The update server %1 could not be reached.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Le serveur de mises à jour %1 est inaccessible.</translation>
    </message>
    <message>
        <source>Change Pause</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Modifier la pause</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Modifier le texte</translation>
    </message>
    <message>
        <source>Change Duration</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Modifier la durée</translation>
    </message>
    <message>
        <source>Change Frame Rate</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Modifier la cadence</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <extracomment>Fields</extracomment>
        <translation>pas un dictionnaire</translation>
    </message>
    <message>
        <source>step %1: %2</source>
        <extracomment>Fields</extracomment>
        <translation>étape %1 : %2</translation>
    </message>
    <message>
        <source>missing “%1”</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » manque</translation>
    </message>
    <message>
        <source>“%1” is not a string</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » n’est pas une chaîne</translation>
    </message>
    <message>
        <source>“%1” is not a boolean</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » n’est pas un booléen</translation>
    </message>
    <message>
        <source>“%1” is not data</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » n’est pas une donnée binaire</translation>
    </message>
    <message>
        <source>“%1” is not an array</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » n’est pas un tableau</translation>
    </message>
    <message>
        <source>“%1” is not finite</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » n’est pas fini</translation>
    </message>
    <message>
        <source>“%1” is not a number</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » n’est pas un nombre</translation>
    </message>
    <message>
        <source>“%1” is not an array of two numbers</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » n’est pas un tableau de deux nombres</translation>
    </message>
    <message>
        <source>“%1” is not an integer</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » n’est pas un entier</translation>
    </message>
    <message>
        <source>“%1” is out of range</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » est hors limites</translation>
    </message>
    <message>
        <source>“%1” is not a UUID: “%2”</source>
        <extracomment>Fields</extracomment>
        <translation>« %1 » n’est pas un UUID : « %2 »</translation>
    </message>
    <message>
        <source>unknown kind “%1”</source>
        <extracomment>Fields</extracomment>
        <translation>type inconnu « %1 »</translation>
    </message>
    <message>
        <source>cannot be written: another Velvane is writing in its folder</source>
        <extracomment>FolderLock</extracomment>
        <translation>ne peut pas être écrit : un autre Velvane est en train d’écrire dans son dossier</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels is not possible: sides are from 1 to %3 pixels</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>un film de %1 × %2 pixels est impossible : les côtés vont de 1 à %3 pixels</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels is not possible: it has %3 macroblocks, and H.264 allows %4</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>un film de %1 × %2 pixels est impossible : il a %3 macroblocs, et H.264 en permet %4</translation>
    </message>
    <message>
        <source>%1 frames per second are not possible: at least 1</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>%1 images par seconde sont impossibles : au moins 1</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels at %3 frames per second is not possible: it has %4 macroblocks per second, and H.264 allows %5</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>un film de %1 × %2 pixels à %3 images par seconde est impossible : il a %4 macroblocs par seconde, et H.264 en permet %5</translation>
    </message>
    <message>
        <source>Actions are being recorded.</source>
        <extracomment>InputTurns</extracomment>
        <translation>Des actions sont en cours d’enregistrement.</translation>
    </message>
    <message>
        <source>Delete Step</source>
        <extracomment>InspectorPane, StepList, StepCommands</extracomment>
        <translation>Supprimer l’étape</translation>
    </message>
    <message>
        <source>Delete this step</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Supprimer cette étape</translation>
    </message>
    <message>
        <source>Delete Steps</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Supprimer les étapes</translation>
    </message>
    <message>
        <source>Delete the selected steps</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Supprimer les étapes sélectionnées</translation>
    </message>
    <message>
        <source>No step selected</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Aucune étape sélectionnée</translation>
    </message>
    <message>
        <source>%1 steps selected</source>
        <extracomment>InspectorPane</extracomment>
        <translation>%1 étapes sélectionnées</translation>
    </message>
    <message>
        <source>not a property list</source>
        <extracomment>KeptDemo, velvane</extracomment>
        <translation>pas une liste de propriétés</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <extracomment>KeptSession</extracomment>
        <translation>le dossier %1 ne peut pas être créé</translation>
    </message>
    <message>
        <source>Driving the real cursor — bring your target app forward</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Pilotage du vrai pointeur — mettez l’app visée au premier plan</translation>
    </message>
    <message>
        <source>Switching to %1</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Passage à %1</translation>
    </message>
    <message>
        <source>Press Esc to abort</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Échap pour interrompre</translation>
    </message>
    <message>
        <source>Live run in progress — Esc to stop</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Exécution en direct — Échap pour arrêter</translation>
    </message>
    <message>
        <source>A live run is in progress.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Une exécution en direct est en cours.</translation>
    </message>
    <message>
        <source>Add some steps first.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Ajoutez d’abord des étapes.</translation>
    </message>
    <message>
        <source>Grant Accessibility permission to Velvane, then run again.</source>
        <extracomment>LiveRunController, RecordActionsController</extracomment>
        <translation>Accordez à Velvane l’autorisation d’accessibilité, puis relancez.</translation>
    </message>
    <message>
        <source>Esc cannot be watched for here, so nothing was run.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>La touche Échap ne peut pas être surveillée ici, rien n’a donc été exécuté.</translation>
    </message>
    <message>
        <source>Recording stopped: %1</source>
        <extracomment>LiveRunController, RecordActionsController</extracomment>
        <translation>Enregistrement arrêté : %1</translation>
    </message>
    <message>
        <source>Couldn't start recording: %1</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Impossible de démarrer l’enregistrement : %1</translation>
    </message>
    <message>
        <source>Live run stopped: the display has gone.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Exécution en direct arrêtée : l’écran a disparu.</translation>
    </message>
    <message>
        <source>Live run stopped.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Exécution en direct arrêtée.</translation>
    </message>
    <message>
        <source>Live run finished.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Exécution en direct terminée.</translation>
    </message>
    <message>
        <source>Recording saved to %1%2 — revealed in Finder.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Enregistrement placé dans %1%2 — montré dans le gestionnaire de fichiers.</translation>
    </message>
    <message>
        <source> (window not found — recorded full screen)</source>
        <extracomment>LiveRunController</extracomment>
        <translation> (fenêtre introuvable — écran entier enregistré)</translation>
    </message>
    <message>
        <source>Position the cursor over the target — grabbing in %1s · Esc to cancel</source>
        <extracomment>LocationPicker</extracomment>
        <translation>Placez le pointeur sur la cible — relevé dans %1 s · Échap pour annuler</translation>
    </message>
    <message>
        <source>another user's link stands in its place</source>
        <extracomment>MovieFile, WholeFile</extracomment>
        <translation>le lien d’un autre utilisateur se trouve à sa place</translation>
    </message>
    <message>
        <source>Not a regular file.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The movie has no duration.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Le film n’a pas de durée.</translation>
    </message>
    <message>
        <source>The file holds no pictures.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Le fichier ne contient pas d’images.</translation>
    </message>
    <message>
        <source>The movie is encrypted.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Le film est chiffré.</translation>
    </message>
    <message>
        <source>No movie can have this size.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Aucun film ne peut avoir cette taille.</translation>
    </message>
    <message>
        <source>The movie has no picture that can be decoded.</source>
        <extracomment>MovieReader</extracomment>
        <translation>Le film n’a aucune image décodable.</translation>
    </message>
    <message>
        <source>↑ and ↓ change it by 0.1 s; with Shift, or Page Up and Page Down, by 1 s.</source>
        <extracomment>NumberField</extracomment>
        <translation>↑ et ↓ modifient de 0,1 s ; avec Maj, ou avec Page préc. et suiv., de 1 s.</translation>
    </message>
    <message>
        <source>↑ and ↓ change it by 1; with Shift, or Page Up and Page Down, by 10.</source>
        <extracomment>NumberField</extracomment>
        <translation>↑ et ↓ modifient de 1 ; avec Maj, ou avec Page préc. et suiv., de 10.</translation>
    </message>
    <message>
        <source>Pick on screen — position the cursor over the target.</source>
        <extracomment>PickLocationController</extracomment>
        <translation>Choix à l’écran — placez le pointeur sur la cible.</translation>
    </message>
    <message>
        <source>Pick Location</source>
        <extracomment>PickLocationController</extracomment>
        <translation>Choisir la position</translation>
    </message>
    <message>
        <source>Captured target at (%1, %2)</source>
        <extracomment>PickLocationController</extracomment>
        <translation>Cible relevée en (%1, %2)</translation>
    </message>
    <message>
        <source>Nothing here decodes %1.</source>
        <extracomment>PictureDecoder</extracomment>
        <translation>Rien ici ne décode %1.</translation>
    </message>
    <message>
        <source>The movie's pictures cannot be decoded.</source>
        <extracomment>PictureDecoder</extracomment>
        <translation>Les images du film ne peuvent pas être décodées.</translation>
    </message>
    <message>
        <source>Step %1, %2</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Étape %1, %2</translation>
    </message>
    <message>
        <source>Preview canvas</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Canevas d’aperçu</translation>
    </message>
    <message>
        <source>Click to drop a Move waypoint or to set the selected target. The arrow keys nudge it, Z magnifies.</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Cliquez pour placer un point de passage ou la cible sélectionnée. Les flèches la décalent, Z agrandit.</translation>
    </message>
    <message>
        <source>Target %1 at (%2, %3)</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Cible %1 en (%2, %3)</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>ProgressBar</extracomment>
        <translation>%1 restantes</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>ProgressBar</extracomment>
        <translation>en %1</translation>
    </message>
    <message>
        <source>more than %1 steps</source>
        <extracomment>ProjectFile, velvane</extracomment>
        <translation>plus de %1 étapes</translation>
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
        <translation>Aujourd’hui %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>Hier</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>d MMMM</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>Recording starts in %1…</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>L’enregistrement commence dans %1…</translation>
    </message>
    <message>
        <source>Couldn't start recording — grant Input Monitoring to Velvane in System Settings.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>Impossible de démarrer l’enregistrement — accordez à Velvane la surveillance des entrées dans les réglages du système.</translation>
    </message>
    <message>
        <source>Recording stopped — no actions captured.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>Enregistrement arrêté — aucune action captée.</translation>
    </message>
    <message>
        <source>Record Actions</source>
        <extracomment>RecordActionsController, StepCommands</extracomment>
        <translation>Enregistrer des actions</translation>
    </message>
    <message>
        <source>Recorded %1 step%2.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>%1 étape enregistrée%2.</translation>
    </message>
    <message>
        <source>Recorded %1 steps%2.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>%1 étapes enregistrées%2.</translation>
    </message>
    <message>
        <source> with screen recording</source>
        <extracomment>RecordActionsController</extracomment>
        <translation> avec l’enregistrement de l’écran</translation>
    </message>
    <message>
        <source>This demo has no screen recording yet.</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>Cette démo n’a pas encore d’enregistrement de l’écran.</translation>
    </message>
    <message>
        <source>Recording file is missing — backdrop unavailable.</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>Fichier d’enregistrement introuvable — arrière-plan indisponible.</translation>
    </message>
    <message>
        <source>Couldn't read the screen recording (%1).</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>Impossible de lire l’enregistrement de l’écran (%1).</translation>
    </message>
    <message>
        <source>Velvane did not end properly the last time.</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Velvane ne s’est pas terminé correctement la dernière fois.</translation>
    </message>
    <message>
        <source>These demos have changes that were not saved. What is not checked is offered again at the next start.</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Ces démos ont des modifications non enregistrées. Ce qui n’est pas coché sera proposé de nouveau au prochain démarrage.</translation>
    </message>
    <message>
        <source>Demos with changes that were not saved</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Démos aux modifications non enregistrées</translation>
    </message>
    <message>
        <source>Check the demos that you mean</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Cochez les démos concernées</translation>
    </message>
    <message>
        <source>never saved</source>
        <extracomment>RestorePanel</extracomment>
        <translation>jamais enregistrée</translation>
    </message>
    <message>
        <source>%1 — %2, %3</source>
        <extracomment>RestorePanel</extracomment>
        <translation>%1 — %2, %3</translation>
    </message>
    <message>
        <source>Open the checked demos</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Ouvrir les démos cochées</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Ask again at the next start</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Redemander au prochain démarrage</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Give up the changes of the checked demos</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Abandonner les modifications des démos cochées</translation>
    </message>
    <message>
        <source>No display to record</source>
        <extracomment>RunRecorder</extracomment>
        <translation>Aucun écran à enregistrer</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Ouvrir les réglages</translation>
    </message>
    <message>
        <source>Open the page that permits screen recording</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Ouvrir la page qui autorise l’enregistrement de l’écran</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Look again whether it is permitted</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Vérifier de nouveau si c’est autorisé</translation>
    </message>
    <message>
        <source>Screen Recording permission needed</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Autorisation d’enregistrer l’écran nécessaire</translation>
    </message>
    <message>
        <source>Velvane shows your live screen as the backdrop so you can pick targets where they really are.</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Velvane affiche votre écran en direct comme arrière-plan pour que vous choisissiez les cibles là où elles sont vraiment.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Scrubber</extracomment>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Preview time</source>
        <extracomment>Scrubber</extracomment>
        <translation>Temps de l’aperçu</translation>
    </message>
    <message>
        <source>Together</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Ensemble</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>SeveralStepsForm, StepForm, TransportBar, DemoCommands, cli</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause of all selected</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Pause de toute la sélection</translation>
    </message>
    <message>
        <source>How long to rest after each of these actions</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Durée du repos après chacune de ces actions</translation>
    </message>
    <message>
        <source>s</source>
        <extracomment>SeveralStepsForm, StepForm</extracomment>
        <translation>s</translation>
    </message>
    <message>
        <source>Duplicate the selected steps</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Dupliquer les étapes sélectionnées</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>SeveralStepsForm, StepListModel</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <extracomment>ShortcutRecorder</extracomment>
        <translation>Tapez les touches…</translation>
    </message>
    <message>
        <source>Record shortcut</source>
        <extracomment>ShortcutRecorder</extracomment>
        <translation>Enregistrer le raccourci</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>StartWindow, FileCommands</extracomment>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Make a new demo</source>
        <extracomment>StartWindow</extracomment>
        <translation>Créer une nouvelle démo</translation>
    </message>
    <message>
        <source>Open…</source>
        <extracomment>StartWindow, FileCommands</extracomment>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Open a demo from a file</source>
        <extracomment>StartWindow</extracomment>
        <translation>Ouvrir une démo à partir d’un fichier</translation>
    </message>
    <message>
        <source>Recent demos</source>
        <extracomment>StartWindow</extracomment>
        <translation>Démos récentes</translation>
    </message>
    <message>
        <source>Open a recent demo</source>
        <extracomment>StartWindow</extracomment>
        <translation>Ouvrir une démo récente</translation>
    </message>
    <message>
        <source>Demos that you open or save appear here.</source>
        <extracomment>StartWindow</extracomment>
        <translation>Les démos que vous ouvrez ou enregistrez apparaissent ici.</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>StartWindow</extracomment>
        <translation>%1, dans %2</translation>
    </message>
    <message>
        <source>%1 × %2 · %3%</source>
        <extracomment>StatusLineView</extracomment>
        <translation>%1 × %2 · %3 %</translation>
    </message>
    <message>
        <source>Canvas %1</source>
        <extracomment>StatusLineView</extracomment>
        <translation>Canevas %1</translation>
    </message>
    <message>
        <source>Cut Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>Couper les étapes</translation>
    </message>
    <message>
        <source>Paste Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>Coller les étapes</translation>
    </message>
    <message>
        <source>Duplicate Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>Dupliquer les étapes</translation>
    </message>
    <message>
        <source>Center Window</source>
        <extracomment>StepEdits</extracomment>
        <translation>Centrer la fenêtre</translation>
    </message>
    <message>
        <source>Set Shortcut</source>
        <extracomment>StepEdits</extracomment>
        <translation>Définir le raccourci</translation>
    </message>
    <message>
        <source>Click the preview to set this target — or Pick on screen to grab the cursor's location after a countdown, for spots only visible while interacting (menus, popovers).</source>
        <extracomment>StepForm</extracomment>
        <translation>Cliquez dans l’aperçu pour placer cette cible — ou choisissez à l’écran pour relever la position du pointeur après un décompte, pour ce qui n’est visible que pendant l’interaction (menus, bulles).</translation>
    </message>
    <message>
        <source>A quick press and release at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>Un bref appui au point actuel.</translation>
    </message>
    <message>
        <source>A secondary (right) click at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>Un clic secondaire (droit) au point actuel.</translation>
    </message>
    <message>
        <source>Presses and holds the button. Add Move steps to drag, then a Release.</source>
        <extracomment>StepForm</extracomment>
        <translation>Appuie sur le bouton et le maintient. Ajoutez des étapes Aller pour glisser, puis Relâcher.</translation>
    </message>
    <message>
        <source>Releases a held button — completes a drag.</source>
        <extracomment>StepForm</extracomment>
        <translation>Relâche le bouton maintenu — termine un glissement.</translation>
    </message>
    <message>
        <source>Press the key combo to record it (e.g. ⌘C). It fires at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>Appuyez sur la combinaison à enregistrer (p. ex. ⌘C). Elle est envoyée au point actuel.</translation>
    </message>
    <message>
        <source>Pauses for the time shown on the right of the step row.</source>
        <extracomment>StepForm</extracomment>
        <translation>Attend le temps indiqué à droite de la ligne de l’étape.</translation>
    </message>
    <message>
        <source>A heading to organize the flow. It does nothing when the demo runs.</source>
        <extracomment>StepForm</extracomment>
        <translation>Un titre pour structurer le parcours. Sans effet à l’exécution.</translation>
    </message>
    <message>
        <source>Target</source>
        <extracomment>StepForm</extracomment>
        <translation>Cible</translation>
    </message>
    <message>
        <source>Target %1</source>
        <extracomment>StepForm</extracomment>
        <translation>Cible %1</translation>
    </message>
    <message>
        <source>How far from the canvas's left edge</source>
        <extracomment>StepForm</extracomment>
        <translation>Distance au bord gauche du canevas</translation>
    </message>
    <message>
        <source>How far from the canvas's top edge</source>
        <extracomment>StepForm</extracomment>
        <translation>Distance au bord supérieur du canevas</translation>
    </message>
    <message>
        <source>Pick on screen</source>
        <extracomment>StepForm</extracomment>
        <translation>Choisir à l’écran</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>StepForm</extracomment>
        <translation>Texte</translation>
    </message>
    <message>
        <source>The text to type, line breaks included</source>
        <extracomment>StepForm</extracomment>
        <translation>Le texte à saisir, sauts de ligne compris</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>StepForm</extracomment>
        <translation>Titre</translation>
    </message>
    <message>
        <source>The heading in the step list</source>
        <extracomment>StepForm</extracomment>
        <translation>Le titre dans la liste des étapes</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>StepForm, velvane</extracomment>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>App</source>
        <extracomment>StepForm</extracomment>
        <translation>App</translation>
    </message>
    <message>
        <source>Center window</source>
        <extracomment>StepForm</extracomment>
        <translation>Centrer la fenêtre</translation>
    </message>
    <message>
        <source>Center the app's front window on the screen</source>
        <extracomment>StepForm</extracomment>
        <translation>Centrer la fenêtre avant de l’app à l’écran</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>StepForm</extracomment>
        <translation>Durée</translation>
    </message>
    <message>
        <source>How long the action takes</source>
        <extracomment>StepForm</extracomment>
        <translation>Durée de l’action</translation>
    </message>
    <message>
        <source>How long to rest after the action</source>
        <extracomment>StepForm</extracomment>
        <translation>Durée du repos après l’action</translation>
    </message>
    <message>
        <source>Grab the cursor's location after a countdown</source>
        <extracomment>StepForm</extracomment>
        <translation>Relever la position du pointeur après un décompte</translation>
    </message>
    <message>
        <source>Move to</source>
        <extracomment>StepKind</extracomment>
        <translation>Aller à</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>StepKind</extracomment>
        <translation>Aller</translation>
    </message>
    <message>
        <source>Click</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Clic</translation>
    </message>
    <message>
        <source>Right-click</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Clic droit</translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>StepKind</extracomment>
        <translation>Droit</translation>
    </message>
    <message>
        <source>Hold (mouse down)</source>
        <extracomment>StepKind</extracomment>
        <translation>Maintenir (bouton enfoncé)</translation>
    </message>
    <message>
        <source>Hold</source>
        <extracomment>StepKind</extracomment>
        <translation>Maintenir</translation>
    </message>
    <message>
        <source>Release (mouse up)</source>
        <extracomment>StepKind</extracomment>
        <translation>Relâcher (bouton)</translation>
    </message>
    <message>
        <source>Release</source>
        <extracomment>StepKind</extracomment>
        <translation>Relâcher</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Saisir</translation>
    </message>
    <message>
        <source>Keyboard shortcut</source>
        <extracomment>StepKind</extracomment>
        <translation>Raccourci clavier</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Wait</source>
        <extracomment>StepKind</extracomment>
        <translation>Attendre</translation>
    </message>
    <message>
        <source>Switch app</source>
        <extracomment>StepKind</extracomment>
        <translation>Changer d’app</translation>
    </message>
    <message>
        <source>Switch</source>
        <extracomment>StepKind</extracomment>
        <translation>Basculer</translation>
    </message>
    <message>
        <source>Section</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Section</translation>
    </message>
    <message>
        <source>Reorder Steps</source>
        <extracomment>StepList</extracomment>
        <translation>Réordonner les étapes</translation>
    </message>
    <message>
        <source>Set App</source>
        <extracomment>StepList</extracomment>
        <translation>Définir l’app</translation>
    </message>
    <message>
        <source>Add a step</source>
        <extracomment>StepListPane</extracomment>
        <translation>Nouvelle étape</translation>
    </message>
    <message>
        <source>Run Live from Here</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Exécuter en direct à partir d’ici</translation>
    </message>
    <message>
        <source>Expand section</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Déplier la section</translation>
    </message>
    <message>
        <source>Collapse section</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Replier la section</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Steps</source>
        <extracomment>StepListView</extracomment>
        <translation>Étapes</translation>
    </message>
    <message>
        <source>%1 / %2s</source>
        <extracomment>TimeSlider</extracomment>
        <translation>%1 / %2 s</translation>
    </message>
    <message>
        <source>Go to Start</source>
        <extracomment>TransportBar, DemoCommands</extracomment>
        <translation>Aller au début</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>TransportBar, DemoCommands</extracomment>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>No update feed is configured, so Velvane cannot check for updates.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Aucun flux de mises à jour n’est configuré, Velvane ne peut donc pas en rechercher.</translation>
    </message>
    <message>
        <source>Velvane %1 is the newest version.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Velvane %1 est la version la plus récente.</translation>
    </message>
    <message>
        <source>Velvane %1 is available.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Velvane %1 est disponible.</translation>
    </message>
    <message>
        <source>You have version %1. The download page opens in your browser.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Vous avez la version %1. La page de téléchargement s’ouvre dans votre navigateur.</translation>
    </message>
    <message>
        <source>Recording time</source>
        <extracomment>VideoScrubBar</extracomment>
        <translation>Temps de l’enregistrement</translation>
    </message>
    <message>
        <source>Time in the recording</source>
        <extracomment>VideoScrubBar</extracomment>
        <translation>Temps dans l’enregistrement</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>WindowCommands</extracomment>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>There is no connection to an X server.</source>
        <extracomment>X11Camera, X11Screens</extracomment>
        <translation>Il n’y a pas de connexion à un serveur X.</translation>
    </message>
    <message>
        <source>The X server stores pixels in another byte order.</source>
        <extracomment>X11Camera</extracomment>
        <translation>Le serveur X stocke les pixels dans un autre ordre d’octets.</translation>
    </message>
    <message>
        <source>The region to record lies outside the display.</source>
        <extracomment>X11Camera</extracomment>
        <translation>La zone à enregistrer se trouve hors de l’écran.</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <extracomment>X11CaptureStream</extracomment>
        <translation>Le serveur X a disparu.</translation>
    </message>
    <message>
        <source>no display</source>
        <extracomment>X11Desktop</extracomment>
        <translation>aucun écran</translation>
    </message>
    <message>
        <source>X11 display %1</source>
        <extracomment>X11Desktop</extracomment>
        <translation>écran X11 %1</translation>
    </message>
    <message>
        <source>%1, with a compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, avec compositeur</translation>
    </message>
    <message>
        <source>%1, without a compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, sans compositeur</translation>
    </message>
    <message>
        <source>Window manager</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Gestion. de fenêtres</translation>
    </message>
    <message>
        <source>none that can be asked (EWMH)</source>
        <extracomment>X11Desktop</extracomment>
        <translation>aucun qui puisse être interrogé (EWMH)</translation>
    </message>
    <message>
        <source>%1, can be asked (EWMH)</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, peut être interrogé (EWMH)</translation>
    </message>
    <message>
        <source>%1, without %2</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, sans %2</translation>
    </message>
    <message>
        <source>Switching applications or moving their windows may not work; use another window manager.</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Changer d’application ou déplacer ses fenêtres peut échouer ; utilisez un autre gestionnaire de fenêtres.</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Gardien</translation>
    </message>
    <message>
        <source>releases what is held if Velvane ends</source>
        <extracomment>X11Desktop</extracomment>
        <translation>relâche ce qui est maintenu si Velvane s’arrête</translation>
    </message>
    <message>
        <source>missing</source>
        <extracomment>X11Desktop</extracomment>
        <translation>absent</translation>
    </message>
    <message>
        <source>Install Velvane again: velvane-watchdog is not beside it.</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Réinstallez Velvane : velvane-watchdog n’est pas à côté.</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>X11Desktop</extracomment>
        <translation>en cours</translation>
    </message>
    <message>
        <source>none; none is needed</source>
        <extracomment>X11Desktop</extracomment>
        <translation>aucun ; aucun n’est nécessaire</translation>
    </message>
    <message>
        <source>Compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Compositeur</translation>
    </message>
    <message>
        <source>There is no display.</source>
        <extracomment>X11Desktop, X11InputSynthesizer, X11Listener, X11WindowManager</extracomment>
        <translation>Il n’y a pas d’écran.</translation>
    </message>
    <message>
        <source>In a Wayland session only programs that use X11 could be driven: log in with an X11 session instead.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>Dans une session Wayland, seuls les programmes utilisant X11 pourraient être pilotés : ouvrez plutôt une session X11.</translation>
    </message>
    <message>
        <source>This X server lets no program post input: it lacks the XTEST extension.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>Ce serveur X ne permet à aucun programme d’envoyer des entrées : l’extension XTEST lui manque.</translation>
    </message>
    <message>
        <source>velvane-watchdog, which releases what is held if Velvane ends, is missing: install Velvane again.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>velvane-watchdog, qui relâche ce qui est maintenu si Velvane s’arrête, est absent : réinstallez Velvane.</translation>
    </message>
    <message>
        <source>%1 takes a connection to the X server, and there is none.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 exige une connexion au serveur X, et il n’y en a pas.</translation>
    </message>
    <message>
        <source>%1 reaches only X11 windows in a Wayland session. Log in with an X11 session instead.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 n’atteint que les fenêtres X11 dans une session Wayland. Ouvrez plutôt une session X11.</translation>
    </message>
    <message>
        <source>%1 takes what this X server lacks: %2. Enable it in the server, and use a local or trusted connection.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 exige ce qui manque à ce serveur X : %2. Activez-le dans le serveur et utilisez une connexion locale ou approuvée.</translation>
    </message>
    <message>
        <source>%1 is refused by this X server. Use a local or trusted connection.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 : ce serveur X le refuse. Utilisez une connexion locale ou approuvée.</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>Il ne manque rien.</translation>
    </message>
    <message>
        <source>Only X11 windows can be controlled in a Wayland session. Log in with an X11 session instead.</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>Dans une session Wayland, seules les fenêtres X11 peuvent être contrôlées. Ouvrez plutôt une session X11.</translation>
    </message>
    <message>
        <source>No window manager that can be asked (EWMH) is running. Start one.</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>Aucun gestionnaire de fenêtres interrogeable (EWMH) n’est en marche. Démarrez-en un.</translation>
    </message>
    <message>
        <source>without a name</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>sans nom</translation>
    </message>
    <message>
        <source>damaged property list: line %1, column %2: %3</source>
        <extracomment>XmlReader</extracomment>
        <translation>liste de propriétés endommagée : ligne %1, colonne %2 : %3</translation>
    </message>
    <message>
        <source>the display %1 cannot be opened</source>
        <extracomment>cli</extracomment>
        <translation>l’écran %1 ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>there is no display to open a window on</source>
        <extracomment>cli</extracomment>
        <translation>il n’y a pas d’écran où ouvrir une fenêtre</translation>
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
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>About Velvane</source>
        <extracomment>velvane</extracomment>
        <translation>À propos de Velvane</translation>
    </message>
    <message>
        <source>Velvane %1</source>
        <extracomment>velvane</extracomment>
        <translation>Velvane %1</translation>
    </message>
    <message>
        <source>Scripted screen demonstrations.</source>
        <extracomment>velvane</extracomment>
        <translation>Démonstrations d’écran scénarisées.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Demo</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Démo</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <extracomment>velvane</extracomment>
        <translation>Éta&amp;pe</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <extracomment>velvane</extracomment>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>velvane</extracomment>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Wait %1s</source>
        <extracomment>velvane</extracomment>
        <translation>Attendre %1 s</translation>
    </message>
    <message>
        <source>is a folder</source>
        <extracomment>velvane</extracomment>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <extracomment>velvane</extracomment>
        <translation>n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>too large, %1 bytes</source>
        <extracomment>velvane</extracomment>
        <translation>trop grand, %1 octets</translation>
    </message>
    <message>
        <source>no such file</source>
        <extracomment>velvane</extracomment>
        <translation>fichier inexistant</translation>
    </message>
    <message>
        <source>Move to (%1, %2)</source>
        <extracomment>velvane</extracomment>
        <translation>Aller à (%1, %2)</translation>
    </message>
    <message>
        <source>Hold mouse down</source>
        <extracomment>velvane</extracomment>
        <translation>Maintenir le bouton enfoncé</translation>
    </message>
    <message>
        <source>Release mouse</source>
        <extracomment>velvane</extracomment>
        <translation>Relâcher le bouton</translation>
    </message>
    <message>
        <source>Type "%1"</source>
        <extracomment>velvane</extracomment>
        <translation>Saisir « %1 »</translation>
    </message>
    <message>
        <source>Press %1</source>
        <extracomment>velvane</extracomment>
        <translation>Appuyer sur %1</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <extracomment>velvane</extracomment>
        <translation>Passer à %1</translation>
    </message>
    <message>
        <source>app</source>
        <extracomment>velvane</extracomment>
        <translation>une app</translation>
    </message>
    <message>
        <source>Driving the mouse and keyboard</source>
        <extracomment>velvane</extracomment>
        <translation>Piloter la souris et le clavier</translation>
    </message>
    <message>
        <source>Listening to the mouse and keyboard</source>
        <extracomment>velvane</extracomment>
        <translation>Écouter la souris et le clavier</translation>
    </message>
    <message>
        <source>Taking pictures of the screen</source>
        <extracomment>velvane</extracomment>
        <translation>Capturer l’écran</translation>
    </message>
    <message>
        <source>The update feed is not signed.</source>
        <extracomment>velvane</extracomment>
        <translation>Le flux de mises à jour n’est pas signé.</translation>
    </message>
    <message>
        <source>The signature of the update feed is wrong.</source>
        <extracomment>velvane</extracomment>
        <translation>La signature du flux de mises à jour est fausse.</translation>
    </message>
    <message>
        <source>The update feed is older than one that was read before.</source>
        <extracomment>velvane</extracomment>
        <translation>Le flux de mises à jour est plus ancien qu’un flux déjà lu.</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Record Screen</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Enregistrer l’écran</translation>
    </message>
    <message>
        <source>Record Active Window</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Enregistrer la fenêtre active</translation>
    </message>
    <message>
        <source>Screen Recording</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Enregistrement de l’écran</translation>
    </message>
    <message>
        <source>Show Mouse Cursor</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Afficher le pointeur de la souris</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <extracomment>FileCommands</extracomment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <extracomment>FileCommands</extracomment>
        <translation>Effacer le menu</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <extracomment>FileCommands</extracomment>
        <translation>Ouvrir récent</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>FileCommands</extracomment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>FileCommands</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Velvane demos (*.velvane)</source>
        <extracomment>FilePanel</extracomment>
        <translation>Démos Velvane (*.velvane)</translation>
    </message>
    <message>
        <source>“%1” already exists.</source>
        <extracomment>FilePanel</extracomment>
        <translation>« %1 » existe déjà.</translation>
    </message>
    <message>
        <source>Replacing it loses what it holds.</source>
        <extracomment>FilePanel</extracomment>
        <translation>Le remplacer fait perdre ce qu’il contient.</translation>
    </message>
    <message>
        <source>Open Demo</source>
        <extracomment>FilePanel</extracomment>
        <translation>Ouvrir une démo</translation>
    </message>
    <message>
        <source>Save Demo</source>
        <extracomment>FilePanel</extracomment>
        <translation>Enregistrer la démo</translation>
    </message>
    <message>
        <source>The documentation could not be opened.</source>
        <extracomment>HelpCommands</extracomment>
        <translation>La documentation n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>It is found at %1.</source>
        <extracomment>HelpCommands, UpdaterCommands</extracomment>
        <translation>Elle se trouve à l’adresse %1.</translation>
    </message>
    <message>
        <source>Velvane Help</source>
        <extracomment>HelpCommands</extracomment>
        <translation>Aide Velvane</translation>
    </message>
    <message>
        <source>Velvane was installed as a Flatpak, which brings its updates.</source>
        <extracomment>PackageOwner</extracomment>
        <translation>Velvane a été installé en tant que Flatpak, qui fournit ses mises à jour.</translation>
    </message>
    <message>
        <source>Velvane was installed by the package manager, which brings its updates.</source>
        <extracomment>PackageOwner</extracomment>
        <translation>Velvane a été installé par le gestionnaire de paquets, qui fournit ses mises à jour.</translation>
    </message>
    <message>
        <source>The update feed is malformed.</source>
        <extracomment>Reader</extracomment>
        <translation>Le flux de mises à jour est mal formé.</translation>
    </message>
    <message>
        <source>The update feed has no valid “%1”.</source>
        <extracomment>Reader</extracomment>
        <translation>Le flux de mises à jour n’a pas de « %1 » valide.</translation>
    </message>
    <message>
        <source>Session bus</source>
        <extracomment>SessionServices</extracomment>
        <translation>Bus de session</translation>
    </message>
    <message>
        <source>answers</source>
        <extracomment>SessionServices</extracomment>
        <translation>répond</translation>
    </message>
    <message>
        <source>none</source>
        <extracomment>SessionServices, cli</extracomment>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Start Velvane from the desktop, or below dbus-run-session: windows cannot be shared with a running Velvane without it.</source>
        <extracomment>SessionServices</extracomment>
        <translation>Lancez Velvane depuis le bureau, ou sous dbus-run-session : sans lui, les fenêtres ne peuvent pas être partagées avec un Velvane déjà lancé.</translation>
    </message>
    <message>
        <source>Desktop portal</source>
        <extracomment>SessionServices</extracomment>
        <translation>Portail de bureau</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>SessionServices</extracomment>
        <translation>présent</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the one of your desktop, so that dark and light follow the system.</source>
        <extracomment>SessionServices</extracomment>
        <translation>Installez xdg-desktop-portal et celui de votre bureau, pour que clair et sombre suivent le système.</translation>
    </message>
    <message>
        <source>File manager</source>
        <extracomment>SessionServices</extracomment>
        <translation>Gestion. fichiers</translation>
    </message>
    <message>
        <source>shows a file in its folder</source>
        <extracomment>SessionServices</extracomment>
        <translation>montre un fichier dans son dossier</translation>
    </message>
    <message>
        <source>opens a file's folder</source>
        <extracomment>SessionServices</extracomment>
        <translation>ouvre le dossier d’un fichier</translation>
    </message>
    <message>
        <source>none can be asked</source>
        <extracomment>SessionServices</extracomment>
        <translation>aucun ne répond</translation>
    </message>
    <message>
        <source>Install a file manager, and xdg-utils, so that recordings can be shown.</source>
        <extracomment>SessionServices</extracomment>
        <translation>Installez un gestionnaire de fichiers et xdg-utils, pour que les enregistrements puissent être montrés.</translation>
    </message>
    <message>
        <source>can be started</source>
        <extracomment>SessionServices</extracomment>
        <translation>peuvent être lancées</translation>
    </message>
    <message>
        <source>only running ones can be switched to</source>
        <extracomment>SessionServices</extracomment>
        <translation>seules celles qui sont en cours d’exécution peuvent passer au premier plan</translation>
    </message>
    <message>
        <source>Start them before a live run, or allow it: %1</source>
        <extracomment>SessionServices</extracomment>
        <translation>Lancez-les avant une exécution en direct, ou autorisez-le : %1</translation>
    </message>
    <message>
        <source>Add Step</source>
        <extracomment>StepCommands</extracomment>
        <translation>Ajouter une étape</translation>
    </message>
    <message>
        <source>Recording — Esc to Stop</source>
        <extracomment>StepCommands</extracomment>
        <translation>Enregistrement — Échap pour arrêter</translation>
    </message>
    <message>
        <source>Pick Location on Screen…</source>
        <extracomment>StepCommands</extracomment>
        <translation>Choisir une position à l’écran…</translation>
    </message>
    <message>
        <source>The download page could not be opened.</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>La page de téléchargement n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Ouvrir la page de téléchargement</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Check for Updates Automatically</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Rechercher automatiquement les mises à jour</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Velvane %1 is available: see “Check for Updates…” in the menu “Help”.</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Velvane %1 est disponible : voir « Rechercher des mises à jour… » dans le menu « Aide ».</translation>
    </message>
    <message>
        <source>Live Backdrop</source>
        <extracomment>ViewCommands</extracomment>
        <translation>Arrière-plan en direct</translation>
    </message>
    <message>
        <source>Recording Backdrop</source>
        <extracomment>ViewCommands</extracomment>
        <translation>Enregistrement en arrière-plan</translation>
    </message>
    <message>
        <source>Zoom 4×</source>
        <extracomment>ViewCommands</extracomment>
        <translation>Agrandir 4×</translation>
    </message>
    <message>
        <source>lacks %1</source>
        <extracomment>X11Facts</extracomment>
        <translation>il manque %1</translation>
    </message>
    <message>
        <source>Enable %1 in the X server: without it %2.</source>
        <extracomment>X11Facts</extracomment>
        <translation>Activez %1 dans le serveur X : sans cela, %2.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <extracomment>X11Facts</extracomment>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <extracomment>X11Facts</extracomment>
        <translation>illisible</translation>
    </message>
    <message>
        <source>Enable XKEYBOARD in the X server: without it nothing is typed as written.</source>
        <extracomment>X11Facts</extracomment>
        <translation>Activez XKEYBOARD dans le serveur X : sans cela, rien n’est saisi tel qu’écrit.</translation>
    </message>
    <message>
        <source>layout not named</source>
        <extracomment>X11Facts</extracomment>
        <translation>disposition sans nom</translation>
    </message>
    <message>
        <source>layout %1</source>
        <extracomment>X11Facts</extracomment>
        <translation>disposition %1</translation>
    </message>
    <message>
        <source>Posting</source>
        <extracomment>X11Facts</extracomment>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>nothing is clicked or typed</source>
        <extracomment>X11Facts</extracomment>
        <translation>rien n’est cliqué ni saisi</translation>
    </message>
    <message>
        <source>Listening</source>
        <extracomment>X11Facts</extracomment>
        <translation>Écoute</translation>
    </message>
    <message>
        <source>actions are not heard and Esc does not stop a run</source>
        <extracomment>X11Facts</extracomment>
        <translation>les actions ne sont pas entendues et Échap n’arrête pas une exécution</translation>
    </message>
    <message>
        <source>Pictures</source>
        <extracomment>X11Facts</extracomment>
        <translation>Images</translation>
    </message>
    <message>
        <source>the screen is neither shown nor recorded</source>
        <extracomment>X11Facts</extracomment>
        <translation>l’écran n’est ni montré ni enregistré</translation>
    </message>
    <message>
        <source>Fast pictures</source>
        <extracomment>X11Facts</extracomment>
        <translation>Images rapides</translation>
    </message>
    <message>
        <source>pictures of the screen come slowly</source>
        <extracomment>X11Facts</extracomment>
        <translation>les images de l’écran arrivent lentement</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>X11Facts</extracomment>
        <translation>Écrans</translation>
    </message>
    <message>
        <source>several displays are taken for one</source>
        <extracomment>X11Facts</extracomment>
        <translation>plusieurs écrans passent pour un seul</translation>
    </message>
    <message>
        <source>Usage</source>
        <extracomment>cli</extracomment>
        <translation>Usage</translation>
    </message>
    <message>
        <source>Positionals</source>
        <extracomment>cli</extracomment>
        <translation>Arguments</translation>
    </message>
    <message>
        <source>Subcommands</source>
        <extracomment>cli</extracomment>
        <translation>Sous-commandes</translation>
    </message>
    <message>
        <source>Print this help message and exit</source>
        <extracomment>cli</extracomment>
        <translation>Afficher cette aide et quitter</translation>
    </message>
    <message>
        <source>Display program version information and exit</source>
        <extracomment>cli</extracomment>
        <translation>Afficher la version et quitter</translation>
    </message>
    <message>
        <source>This Flatpak cannot reach it. Give it the folder: %1</source>
        <extracomment>cli</extracomment>
        <translation>Ce Flatpak ne peut pas y accéder. Donnez-lui le dossier : %1</translation>
    </message>
    <message>
        <source>Write a demo in the binary format, from binary or XML</source>
        <extracomment>cli</extracomment>
        <translation>Écrire au format binaire une démo binaire ou XML</translation>
    </message>
    <message>
        <source>The demo to read</source>
        <extracomment>cli</extracomment>
        <translation>La démo à lire</translation>
    </message>
    <message>
        <source>The file to write; an existing one is replaced</source>
        <extracomment>cli</extracomment>
        <translation>Le fichier à écrire ; s’il existe, il est remplacé</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Read a demo, as a binary or an XML property list, and write it in the
  binary format. Keys that no demo has are left out. OUT is written whole or
  not at all, so it may be IN.

EXAMPLE
  velvane convert tour.xml tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>DESCRIPTION
  Lit une démo, liste de propriétés binaire ou XML, et l’écrit au format
  binaire. Les clés qu’aucune démo n’a sont omises. OUT est écrit en entier
  ou pas du tout ; il peut donc être IN.

EXEMPLE
  velvane convert tour.xml tour.velvane</translation>
    </message>
    <message>
        <source>%1: is not writable</source>
        <extracomment>cli</extracomment>
        <translation>%1 : n’est pas accessible en écriture</translation>
    </message>
    <message>
        <source>The screen (%1) is larger than the canvas (%2): what lies beyond is recorded at the canvas's edge.</source>
        <extracomment>cli</extracomment>
        <translation>L’écran (%1) est plus grand que le canevas (%2) : ce qui est au-delà est enregistré à son bord.</translation>
    </message>
    <message>
        <source>%1; the recorded steps are in %2</source>
        <extracomment>cli</extracomment>
        <translation>%1 ; les étapes enregistrées sont dans %2</translation>
    </message>
    <message>
        <source>%1 frames per second</source>
        <extracomment>cli</extracomment>
        <translation>%1 images par seconde</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <extracomment>cli</extracomment>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>picture of %1 × %2</source>
        <extracomment>cli</extracomment>
        <translation>image de %1 × %2</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>cli</extracomment>
        <translation>oui</translation>
    </message>
    <message>
        <source>Total</source>
        <extracomment>cli</extracomment>
        <translation>Total</translation>
    </message>
    <message>
        <source>Step</source>
        <extracomment>cli</extracomment>
        <translation>Étape</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>cli</extracomment>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>cli</extracomment>
        <translation>Action</translation>
    </message>
    <message>
        <source>there is no step “%1”</source>
        <extracomment>cli</extracomment>
        <translation>il n’y a pas d’étape « %1 »</translation>
    </message>
    <message>
        <source>Say what this session can and cannot do, with remedies</source>
        <extracomment>cli</extracomment>
        <translation>Dire ce que cette session peut faire ou non, avec les remèdes</translation>
    </message>
    <message>
        <source>Print one JSON array instead of lines</source>
        <extracomment>cli</extracomment>
        <translation>Écrire un tableau JSON au lieu de lignes</translation>
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
        <translation>DESCRIPTION
  Dit ce que cette session peut faire ou non, une ligne par capacité, avec le
  remède sous ce qui manque. Rien n’est modifié et rien n’est montré à
  l’écran.

JSON
  Un objet par capacité : what, works, state, remedy ou null.

EXEMPLE
  velvane doctor --json | jq -r '.[] | select(.works | not) | .remedy'</translation>
    </message>
    <message>
        <source>frames</source>
        <extracomment>cli</extracomment>
        <translation>images</translation>
    </message>
    <message>
        <source>%1: the movie would replace the demo</source>
        <extracomment>cli</extracomment>
        <translation>%1 : le film remplacerait la démo</translation>
    </message>
    <message>
        <source>Export cancelled; %1 holds what was done.</source>
        <extracomment>cli</extracomment>
        <translation>Exportation annulée ; %1 contient ce qui était fait.</translation>
    </message>
    <message>
        <source>Render a demo to a movie</source>
        <extracomment>cli</extracomment>
        <translation>Rendre une démo en film</translation>
    </message>
    <message>
        <source>The demo to render</source>
        <extracomment>cli</extracomment>
        <translation>La démo à rendre</translation>
    </message>
    <message>
        <source>The movie to write</source>
        <extracomment>cli</extracomment>
        <translation>Le film à écrire</translation>
    </message>
    <message>
        <source>When the export fails, print the reason on a second line</source>
        <extracomment>cli</extracomment>
        <translation>Si l’exportation échoue, écrire la raison sur une deuxième ligne</translation>
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
        <translation>DESCRIPTION
  Rend une démo en film H.264 dans un fichier MPEG-4, à la taille du canevas
  et à la cadence de la démo. Un fichier MP4 existant est remplacé. La
  progression va sur la sortie d’erreur : une barre sur un terminal, sinon une
  ligne par dixième.

  Ctrl-C ferme le film avec les images déjà faites, il reste lisible, et finit
  avec le code 130.

EXEMPLE
  velvane export tour.velvane tour.mp4</translation>
    </message>
    <message>
        <source>%1: the picture would replace the demo</source>
        <extracomment>cli</extracomment>
        <translation>%1 : l’image remplacerait la démo</translation>
    </message>
    <message>
        <source>%1: a canvas of %2 × %3 cannot be drawn</source>
        <extracomment>cli</extracomment>
        <translation>%1 : un canevas de %2 × %3 ne peut pas être dessiné</translation>
    </message>
    <message>
        <source>Render one moment of a demo to a picture</source>
        <extracomment>cli</extracomment>
        <translation>Rendre un instant d’une démo en image</translation>
    </message>
    <message>
        <source>The demo</source>
        <extracomment>cli</extracomment>
        <translation>La démo</translation>
    </message>
    <message>
        <source>The moment in seconds</source>
        <extracomment>cli</extracomment>
        <translation>L’instant en secondes</translation>
    </message>
    <message>
        <source>The picture to write</source>
        <extracomment>cli</extracomment>
        <translation>L’image à écrire</translation>
    </message>
    <message>
        <source>Make it no wider and no higher than this</source>
        <extracomment>cli</extracomment>
        <translation>Ne pas la faire plus large ni plus haute que cela</translation>
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
        <translation>DESCRIPTION
  Rend un instant d’une démo en image PNG de la taille du canevas : ce qu’un
  film montre à cet instant. Un instant hors de la démo montre son premier ou
  son dernier moment. Avec --size, une image plus grande est réduite.

EXEMPLES
  velvane frame tour.velvane --at 2.5 --output still.png
  velvane frame tour.velvane --at 0 --size 256 --output thumbnail.png</translation>
    </message>
    <message>
        <source>Show what a demo holds and when it happens</source>
        <extracomment>cli</extracomment>
        <translation>Montrer ce que contient une démo et quand cela se passe</translation>
    </message>
    <message>
        <source>The demo to show</source>
        <extracomment>cli</extracomment>
        <translation>La démo à montrer</translation>
    </message>
    <message>
        <source>Print one JSON object instead of a table</source>
        <extracomment>cli</extracomment>
        <translation>Écrire un objet JSON au lieu d’un tableau</translation>
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
        <translation>DESCRIPTION
  Montre une démo : ses réglages, ses étapes comme dans la liste, et quand
  chacune commence et finit. Les temps sont en secondes.

JSON
  version, fps, canvasSize [largeur, hauteur], startPoint [x, y],
  hasBackground, hasRecording, total, steps, segments.
  Une étape : id, kind, point [x, y], text, duration, pauseAfter, keyCode,
  modifiers, centerWindow, collapsed, recordedOffset ou null, number ou null,
  summary, shortcutDisplay, visible.
  Un segment : step (index dans steps), id, start, end, actionDuration,
  startPos, endPos, heldEntering.

EXEMPLE
  velvane inspect tour.velvane --json | jq .total</translation>
    </message>
    <message>
        <source>%1: the file exists; --force replaces it</source>
        <extracomment>cli</extracomment>
        <translation>%1 : le fichier existe ; --force le remplace</translation>
    </message>
    <message>
        <source>Write a new demo with the defaults</source>
        <extracomment>cli</extracomment>
        <translation>Écrire une nouvelle démo avec les valeurs par défaut</translation>
    </message>
    <message>
        <source>The file to write, usually NAME.velvane</source>
        <extracomment>cli</extracomment>
        <translation>Le fichier à écrire, en général NOM.velvane</translation>
    </message>
    <message>
        <source>Replace the file if it exists</source>
        <extracomment>cli</extracomment>
        <translation>Remplacer le fichier s’il existe</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Write a new demo with the defaults: a canvas of 1280 × 800, 60 frames a
  second, the cursor in the middle, and one step that switches to no
  application yet.

EXAMPLE
  velvane new tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>DESCRIPTION
  Écrit une nouvelle démo avec les valeurs par défaut : un canevas de
  1280 × 800, 60 images par seconde, le pointeur au milieu et une étape qui ne
  passe encore à aucune application.

EXEMPLE
  velvane new tour.velvane</translation>
    </message>
    <message>
        <source>Record real mouse and keyboard actions into a demo</source>
        <extracomment>cli</extracomment>
        <translation>Enregistrer de vraies actions de souris et de clavier dans une démo</translation>
    </message>
    <message>
        <source>The demo that the steps are appended to</source>
        <extracomment>cli</extracomment>
        <translation>La démo à laquelle les étapes sont ajoutées</translation>
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
        <translation>DESCRIPTION
  Enregistre ce qui est fait à la souris et au clavier, après un décompte de
  2,1 secondes, jusqu’à un appui sur Échap, où que soit le clavier ; Ctrl-C et
  SIGTERM y mettent fin aussi. Rien n’est soustrait aux programmes utilisés.
  Les étapes sont ajoutées à la démo, qui est enregistrée.

  Le résultat va sur la sortie standard. Le code est 0, même si rien n’a été
  enregistré et que la démo reste telle quelle, et 1 si cela n’a pas pu
  commencer ou si la démo n’a pas pu être enregistrée.

EXEMPLE
  velvane new tour.velvane &amp;&amp; velvane record tour.velvane</translation>
    </message>
    <message>
        <source>Perform a demo on the real desktop</source>
        <extracomment>cli</extracomment>
        <translation>Exécuter une démo sur le vrai bureau</translation>
    </message>
    <message>
        <source>The demo to perform</source>
        <extracomment>cli</extracomment>
        <translation>La démo à exécuter</translation>
    </message>
    <message>
        <source>Begin with this step: an id or a number</source>
        <extracomment>cli</extracomment>
        <translation>Commencer par cette étape : un identifiant ou un numéro</translation>
    </message>
    <message>
        <source>When switching to an application, hide all others</source>
        <extracomment>cli</extracomment>
        <translation>En passant à une application, masquer toutes les autres</translation>
    </message>
    <message>
        <source>Record: off, screen or window</source>
        <extracomment>cli</extracomment>
        <translation>Enregistrer : off, screen ou window</translation>
    </message>
    <message>
        <source>Leave the pointer out of the recording</source>
        <extracomment>cli</extracomment>
        <translation>Laisser le pointeur hors de l’enregistrement</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <extracomment>cli</extracomment>
        <translation>Commencer aussitôt</translation>
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
        <translation>DESCRIPTION
  Exécute les étapes d’une démo avec la vraie souris et le vrai clavier, après
  un décompte de 2,4 secondes. Échap l’arrête, où que soit le clavier ; Ctrl-C
  et SIGTERM aussi. Rien ne reste enfoncé.

  STEP est l’identifiant ou le numéro d’une étape, comme les montre
  « velvane inspect ». Le pointeur part alors d’où la démo l’aurait laissé.

  Le résultat va sur la sortie standard, suivi du chemin du film d’une
  exécution enregistrée. Les films vont dans Movies/Velvane du dossier
  personnel. Avec « window », ce que couvre la fenêtre de l’unique application
  de la démo est enregistré ; s’il n’y en a pas, ou si la démo passe entre
  plusieurs, c’est l’écran entier. Le code est 0 si la démo est allée à son
  terme, 1 si elle a été arrêtée ou n’a pas pu commencer.

EXEMPLE
  velvane run tour.velvane --from 4 --hide-others</translation>
    </message>
    <message>
        <source>Display server</source>
        <extracomment>cli</extracomment>
        <translation>Serveur graphique</translation>
    </message>
    <message>
        <source>X11 (%1), which does not answer</source>
        <extracomment>cli</extracomment>
        <translation>X11 (%1), qui ne répond pas</translation>
    </message>
    <message>
        <source>Start this in the desktop session, where DISPLAY and XAUTHORITY are right.</source>
        <extracomment>cli</extracomment>
        <translation>Lancez ceci dans la session de bureau, où DISPLAY et XAUTHORITY sont corrects.</translation>
    </message>
    <message>
        <source>Rendering needs none; the editor does: start it in a desktop session.</source>
        <extracomment>cli</extracomment>
        <translation>Le rendu n’en a pas besoin, l’éditeur si : lancez-le dans une session de bureau.</translation>
    </message>
    <message>
        <source>works</source>
        <extracomment>cli</extracomment>
        <translation>fonctionne</translation>
    </message>
    <message>
        <source>not here</source>
        <extracomment>cli</extracomment>
        <translation>pas ici</translation>
    </message>
    <message>
        <source>Caption font</source>
        <extracomment>cli</extracomment>
        <translation>Police des légendes</translation>
    </message>
    <message>
        <source>%1, semibold</source>
        <extracomment>cli</extracomment>
        <translation>%1, demi-gras</translation>
    </message>
    <message>
        <source>Inter is missing, another sans-serif stands in</source>
        <extracomment>cli</extracomment>
        <translation>Inter manque, une autre police sans empattement la remplace</translation>
    </message>
    <message>
        <source>Install %1.</source>
        <extracomment>cli</extracomment>
        <translation>Installez %1.</translation>
    </message>
    <message>
        <source>no font has all of %1</source>
        <extracomment>cli</extracomment>
        <translation>aucune police n’a tous les signes %1</translation>
    </message>
    <message>
        <source>Backdrop pictures</source>
        <extracomment>cli</extracomment>
        <translation>Images de fond</translation>
    </message>
    <message>
        <source>Session</source>
        <extracomment>cli</extracomment>
        <translation>Session</translation>
    </message>
    <message>
        <source>Log in with an X11 session: in a Wayland session demos can be composed and rendered, not run or recorded.</source>
        <extracomment>cli</extracomment>
        <translation>Ouvrez une session X11 : dans une session Wayland, les démos peuvent être composées et rendues, pas exécutées ni enregistrées.</translation>
    </message>
    <message>
        <source>not told</source>
        <extracomment>cli</extracomment>
        <translation>non indiquée</translation>
    </message>
    <message>
        <source>Recordings</source>
        <extracomment>cli</extracomment>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>%1, %2 free</source>
        <extracomment>cli</extracomment>
        <translation>%1, %2 libres</translation>
    </message>
    <message>
        <source>Make room there: a recording ends when the disk is full.</source>
        <extracomment>cli</extracomment>
        <translation>Faites-y de la place : un enregistrement s’arrête quand le disque est plein.</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <extracomment>cli</extracomment>
        <translation>%1 n’est pas accessible en écriture</translation>
    </message>
    <message>
        <source>Make %1 a folder that you may write to.</source>
        <extracomment>cli</extracomment>
        <translation>Faites de %1 un dossier où vous pouvez écrire.</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>cli</extracomment>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Set LANG to a UTF-8 locale, such as C.UTF-8, so that file names and texts are read as they are written.</source>
        <extracomment>cli</extracomment>
        <translation>Réglez LANG sur une locale UTF-8, comme C.UTF-8, pour que noms de fichiers et textes soient lus tels qu’écrits.</translation>
    </message>
    <message>
        <source>Input posting</source>
        <extracomment>cli</extracomment>
        <translation>Envoi d’entrées</translation>
    </message>
    <message>
        <source>Input listening</source>
        <extracomment>cli</extracomment>
        <translation>Écoute d’entrées</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <extracomment>cli</extracomment>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>H.264 encoder</source>
        <extracomment>cli</extracomment>
        <translation>Encodeur H.264</translation>
    </message>
    <message>
        <source>Movie files</source>
        <extracomment>cli</extracomment>
        <translation>Fichiers de films</translation>
    </message>
    <message>
        <source>Shortcut glyphs</source>
        <extracomment>cli</extracomment>
        <translation>Signes de touches</translation>
    </message>
    <message>
        <source>Emoji</source>
        <extracomment>cli</extracomment>
        <translation>Émojis</translation>
    </message>
    <message>
        <source>Show what a demo shows at given moments</source>
        <extracomment>cli</extracomment>
        <translation>Montrer l’état d’une démo à des instants donnés</translation>
    </message>
    <message>
        <source>A moment in seconds; may be given several times</source>
        <extracomment>cli</extracomment>
        <translation>Un instant en secondes ; peut être répété</translation>
    </message>
    <message>
        <source>Length in seconds of the movie recorded with the steps; gives videoTime</source>
        <extracomment>cli</extracomment>
        <translation>Durée en secondes du film enregistré avec les étapes ; donne videoTime</translation>
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
        <translation>DESCRIPTION
  Écrit l’état d’une démo à des instants donnés, en un tableau JSON d’un objet
  par instant : time, cursor [x, y], ripple ou null, press, held, caption ou
  null, videoTime ou null. Un instant hors de la démo montre son premier ou
  son dernier moment.

EXEMPLE
  velvane state tour.velvane --at 0 --at 2.5</translation>
    </message>
</context>
</TS>
