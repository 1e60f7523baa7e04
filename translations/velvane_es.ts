<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Velvane</name>
    <message>
        <source>● Recording — Esc to stop</source>
        <extracomment>ActionRecorder, RecordActionsController</extracomment>
        <translation>● Grabando: Esc para detener</translation>
    </message>
    <message>
        <source>Add %1</source>
        <extracomment>AddStepGrid, StepList</extracomment>
        <translation>Añadir %1</translation>
    </message>
    <message>
        <source>Choose the application to bring to the front</source>
        <extracomment>AppMenu</extracomment>
        <translation>Elegir la aplicación que se traerá al frente</translation>
    </message>
    <message>
        <source>Choose app…</source>
        <extracomment>AppMenu</extracomment>
        <translation>Elegir aplicación…</translation>
    </message>
    <message>
        <source>Running</source>
        <extracomment>AppMenu</extracomment>
        <translation>En ejecución</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>AppMenu, SessionServices</extracomment>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>No applications found</source>
        <extracomment>AppMenu</extracomment>
        <translation>No se encontraron aplicaciones</translation>
    </message>
    <message>
        <source>Unsaved changes could not be kept: %1.</source>
        <extracomment>Autosave</extracomment>
        <translation>No se pudieron conservar los cambios sin guardar: %1.</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Autosave, RestorePanel</extracomment>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>No recording frame to freeze yet.</source>
        <extracomment>BackdropController</extracomment>
        <translation>Aún no hay ningún fotograma de la grabación que congelar.</translation>
    </message>
    <message>
        <source>No live frame yet — grant Screen Recording first.</source>
        <extracomment>BackdropController</extracomment>
        <translation>Aún no hay imagen en vivo: permita primero la grabación de pantalla.</translation>
    </message>
    <message>
        <source>Freeze Frame</source>
        <extracomment>BackdropController</extracomment>
        <translation>Congelar fotograma</translation>
    </message>
    <message>
        <source>damaged property list: %1</source>
        <extracomment>BinaryObjects</extracomment>
        <translation>lista de propiedades dañada: %1</translation>
    </message>
    <message>
        <source>there are no texts in “%1”, only in %2</source>
        <extracomment>CLI</extracomment>
        <translation>no hay textos en «%1», solo en %2</translation>
    </message>
    <message>
        <source>“%1” is not a finite number</source>
        <extracomment>CLI</extracomment>
        <translation>«%1» no es un número finito</translation>
    </message>
    <message>
        <source>Move Target</source>
        <extracomment>CanvasController, FieldEditing</extracomment>
        <translation>Mover objetivo</translation>
    </message>
    <message>
        <source>Add Waypoint</source>
        <extracomment>CanvasController</extracomment>
        <translation>Añadir punto de paso</translation>
    </message>
    <message>
        <source>Added waypoint at (%1, %2).</source>
        <extracomment>CanvasController</extracomment>
        <translation>Punto de paso añadido en (%1, %2).</translation>
    </message>
    <message>
        <source>Nudge Target</source>
        <extracomment>CanvasController</extracomment>
        <translation>Desplazar objetivo</translation>
    </message>
    <message>
        <source>Move Start</source>
        <extracomment>CanvasController, FieldEditing</extracomment>
        <translation>Mover inicio</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>CanvasHint, EditorToolBar</extracomment>
        <translation>En vivo</translation>
    </message>
    <message>
        <source>Show your live screen as the backdrop</source>
        <extracomment>CanvasHint, EditorToolBar</extracomment>
        <translation>Mostrar la pantalla en vivo como fondo</translation>
    </message>
    <message>
        <source>Record</source>
        <extracomment>CanvasHint, StepListPane</extracomment>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>Record real actions and append them as steps</source>
        <extracomment>CanvasHint, StepListPane</extracomment>
        <translation>Grabar acciones reales y añadirlas como pasos</translation>
    </message>
    <message>
        <source>Add a step above, or click the preview to drop a Move waypoint. Turn on Live for your real screen, then Freeze to pick targets against a still. Press Z to magnify.</source>
        <extracomment>CanvasHint, InspectorPane</extracomment>
        <translation>Añada un paso arriba o haga clic en la vista previa para colocar un punto de paso. Active En vivo para ver su pantalla real y luego Congelar para elegir objetivos sobre una imagen fija. Pulse Z para ampliar.</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>CanvasMarks, DemoSettingsForm, cli</extracomment>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Scripted screen demonstrations: a demo is a list of steps (move, click,
type, shortcut, wait and more) over a picture of the screen, rendered to an
H.264 movie or performed on the real desktop.</source>
        <extracomment>CommandLine</extracomment>
        <translation>Demostraciones de pantalla con guion: una demo es una lista de pasos (mover,
clic, escribir, atajo, esperar y más) sobre una imagen de la pantalla, que se
convierte en una película H.264 o se ejecuta en el escritorio real.</translation>
    </message>
    <message>
        <source>Demos to open in the editor</source>
        <extracomment>CommandLine</extracomment>
        <translation>Demos que se abren en el editor</translation>
    </message>
    <message>
        <source>Open them in a process of its own, even when Velvane runs already</source>
        <extracomment>CommandLine</extracomment>
        <translation>Abrirlas en un proceso propio, aunque Velvane ya esté en ejecución</translation>
    </message>
    <message>
        <source>The language of all texts, e.g. de</source>
        <extracomment>CommandLine</extracomment>
        <translation>El idioma de todos los textos, p. ej., de</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>CommandLine, cli</extracomment>
        <translation>Opciones</translation>
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
        <translation>ESTADO DE SALIDA
  0  éxito
  1  fallo, con una línea en la salida de error; una ejecución detenida
  2  uso incorrecto
  130  una exportación detenida con Ctrl-C

Los resultados van a la salida estándar; los mensajes y el progreso, a la de
error. «velvane SUBCOMMAND --help» explica cada subcomando.</translation>
    </message>
    <message>
        <source>(see velvane --help)</source>
        <extracomment>CommandLine, cli</extracomment>
        <translation>(vea velvane --help)</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <extracomment>CommandLine</extracomment>
        <translation>memoria insuficiente</translation>
    </message>
    <message>
        <source>standard output cannot be written to</source>
        <extracomment>CommandLine</extracomment>
        <translation>no se puede escribir en la salida estándar</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <extracomment>DemoDocument</extracomment>
        <translation>no se puede escribir: %1</translation>
    </message>
    <message>
        <source>Change Canvas</source>
        <extracomment>DemoSettings, FieldEditing</extracomment>
        <translation>Cambiar lienzo</translation>
    </message>
    <message>
        <source>“%1” is not a file.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>«%1» no es un archivo.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>No se puede leer «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” is not a picture that Velvane can read.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>«%1» no es una imagen que Velvane pueda leer.</translation>
    </message>
    <message>
        <source>Set Backdrop</source>
        <extracomment>DemoSettings</extracomment>
        <translation>Establecer fondo</translation>
    </message>
    <message>
        <source>Remove Backdrop</source>
        <extracomment>DemoSettings</extracomment>
        <translation>Quitar fondo</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>An</translation>
    </message>
    <message>
        <source>X</source>
        <extracomment>DemoSettingsForm, StepForm</extracomment>
        <translation>X</translation>
    </message>
    <message>
        <source>H</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Al</translation>
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
        <translation>Cadencia</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Velocidad de fotogramas</translation>
    </message>
    <message>
        <source>fps</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>fps</translation>
    </message>
    <message>
        <source>Start X</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Inicio X</translation>
    </message>
    <message>
        <source>Start Y</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Inicio Y</translation>
    </message>
    <message>
        <source>Canvas</source>
        <extracomment>DemoSettingsForm, cli</extracomment>
        <translation>Lienzo</translation>
    </message>
    <message>
        <source>Canvas width</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Anchura del lienzo</translation>
    </message>
    <message>
        <source>Canvas height</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Altura del lienzo</translation>
    </message>
    <message>
        <source>Make the canvas as large as the primary display</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Dar al lienzo el tamaño de la pantalla principal</translation>
    </message>
    <message>
        <source>Match Screen</source>
        <extracomment>DemoSettingsForm, EditorWindow</extracomment>
        <translation>Como la pantalla</translation>
    </message>
    <message>
        <source>No display was found.</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>No se encontró ninguna pantalla.</translation>
    </message>
    <message>
        <source>Picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Backdrop picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Imagen de fondo</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose a picture as the backdrop</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Elegir una imagen como fondo</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove the backdrop picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Quitar la imagen de fondo</translation>
    </message>
    <message>
        <source>Choose Backdrop</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Elegir fondo</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Imágenes (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>There is no backdrop picture.</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>No hay imagen de fondo.</translation>
    </message>
    <message>
        <source>Export to Video…</source>
        <extracomment>DocumentCommands</extracomment>
        <translation>Exportar a vídeo…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <extracomment>Documents</extracomment>
        <translation>No se puede abrir «%1»: %2.</translation>
    </message>
    <message>
        <source>The demo's picture cannot be read; saving leaves it out.</source>
        <extracomment>Documents</extracomment>
        <translation>No se puede leer la imagen de la demo; al guardar se omitirá.</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>EditCommands</extracomment>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>EditCommands</extracomment>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <extracomment>EditCommands, SeveralStepsForm, StepListPane</extracomment>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Select All</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Freeze</source>
        <extracomment>EditorToolBar, ViewCommands</extracomment>
        <translation>Congelar</translation>
    </message>
    <message>
        <source>Recording</source>
        <extracomment>EditorToolBar, cli</extracomment>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Freeze the current frame so you can pick targets against a still</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Congelar el fotograma actual para elegir objetivos sobre una imagen fija</translation>
    </message>
    <message>
        <source>Turn on Live or Recording first.</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Active primero En vivo o Grabación.</translation>
    </message>
    <message>
        <source>Play the captured screen recording as the backdrop</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Reproducir la grabación de pantalla como fondo</translation>
    </message>
    <message>
        <source>Magnify the canvas 4× (Z)</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Ampliar el lienzo 4× (Z)</translation>
    </message>
    <message>
        <source>Run options</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Opciones de ejecución</translation>
    </message>
    <message>
        <source>Hide other apps during run</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Ocultar otras aplicaciones durante la ejecución</translation>
    </message>
    <message>
        <source>Show mouse cursor</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Mostrar el puntero del ratón</translation>
    </message>
    <message>
        <source>Recording mode</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Modo de grabación</translation>
    </message>
    <message>
        <source>Don't record</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>No grabar</translation>
    </message>
    <message>
        <source>Record screen</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Grabar pantalla</translation>
    </message>
    <message>
        <source>Record active window</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Grabar ventana activa</translation>
    </message>
    <message>
        <source>Active window needs a single-app flow</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>La ventana activa requiere un flujo de una sola aplicación</translation>
    </message>
    <message>
        <source>Run Live</source>
        <extracomment>EditorToolBar, DemoCommands</extracomment>
        <translation>Ejecutar en vivo</translation>
    </message>
    <message>
        <source>Drive the real cursor through these steps</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>Mover el puntero real por estos pasos</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Sin título %1</translation>
    </message>
    <message>
        <source>“%1” is open in another window.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>«%1» está abierto en otra ventana.</translation>
    </message>
    <message>
        <source>Choose another name, or close that window first.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Elija otro nombre o cierre antes esa ventana.</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>%1 guardado.</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>No se pudo guardar «%1».</translation>
    </message>
    <message>
        <source>It %1. The demo is still open here with all your changes.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>El archivo %1. La demo sigue abierta aquí con todos sus cambios.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <extracomment>EditorWindow, FileCommands, FilePanel</extracomment>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>EditorWindow, ExportProgressView, FilePanel</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>“%1” was changed by another program since it was opened or saved here.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Otro programa ha modificado «%1» desde que se abrió o guardó aquí.</translation>
    </message>
    <message>
        <source>Replacing it loses what the other program saved.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Si lo reemplaza, se perderá lo que guardó el otro programa.</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>EditorWindow, FilePanel</extracomment>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>“%1” was moved or deleted; saving writes it again.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>«%1» se ha movido o eliminado; al guardar se escribirá de nuevo.</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Otro programa ha modificado «%1».</translation>
    </message>
    <message>
        <source>Reloading it can be undone. If you keep your version, saving asks before it replaces the other.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>La recarga se puede deshacer. Si conserva su versión, al guardar se preguntará antes de reemplazar la otra.</translation>
    </message>
    <message>
        <source>Reload</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Keep My Version</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Conservar mi versión</translation>
    </message>
    <message>
        <source>The screen is larger than the canvas.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>La pantalla es más grande que el lienzo.</translation>
    </message>
    <message>
        <source>The screen has %1 points, the canvas %2. What you do beyond the canvas is recorded at its edge.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>La pantalla tiene %1 puntos; el lienzo, %2. Lo que haga más allá del lienzo se graba en su borde.</translation>
    </message>
    <message>
        <source>Keep Canvas</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Conservar lienzo</translation>
    </message>
    <message>
        <source>Do you want to save the changes to “%1”?</source>
        <extracomment>EditorWindow</extracomment>
        <translation>¿Desea guardar los cambios en «%1»?</translation>
    </message>
    <message>
        <source>Your changes are lost if you don't save them.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Sus cambios se perderán si no los guarda.</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>EditorWindow, FileCommands</extracomment>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Don't Save</source>
        <extracomment>EditorWindow</extracomment>
        <translation>No guardar</translation>
    </message>
    <message>
        <source>“%1” is still being exported.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>«%1» se está exportando todavía.</translation>
    </message>
    <message>
        <source>Closing the demo stops the export before its movie is whole.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Al cerrar la demo, la exportación se detiene antes de que la película esté completa.</translation>
    </message>
    <message>
        <source>Stop Export</source>
        <extracomment>EditorWindow</extracomment>
        <translation>Detener la exportación</translation>
    </message>
    <message>
        <source>The recording backdrop is only for the preview: the movie shows the demo's still backdrop.</source>
        <extracomment>ExportController</extracomment>
        <translation>La grabación de fondo es solo para la vista previa: la película muestra el fondo fijo de la demo.</translation>
    </message>
    <message>
        <source>Exported to %1.</source>
        <extracomment>ExportController, cli</extracomment>
        <translation>Exportado a %1.</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <extracomment>ExportController, cli</extracomment>
        <translation>Error al exportar: %1</translation>
    </message>
    <message>
        <source>Export cancelled.</source>
        <extracomment>ExportController</extracomment>
        <translation>Exportación cancelada.</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed. (Velvane.ExportError error %1.)</source>
        <extracomment>ExportError</extracomment>
        <translation>No se pudo completar la operación. (Velvane.ExportError error %1.)</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <extracomment>ExportPanel</extracomment>
        <translation>Exportar a vídeo</translation>
    </message>
    <message>
        <source>MPEG-4 movies (*.mp4)</source>
        <extracomment>ExportPanel</extracomment>
        <translation>Películas MPEG-4 (*.mp4)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>ExportPanel</extracomment>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Save in:</source>
        <extracomment>ExportPanel, FilePanel</extracomment>
        <translation>Guardar en:</translation>
    </message>
    <message>
        <source>Stop the export; the movie keeps what is done</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>Detener la exportación; la película conserva lo ya hecho</translation>
    </message>
    <message>
        <source>Cancel the export</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>Cancelar la exportación</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>quedan %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>quedan %1 min</translation>
    </message>
    <message>
        <source>Exporting, %1 %2</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>Exportando, %1 %2</translation>
    </message>
    <message>
        <source>No movie is %1 × %2 pixels large.</source>
        <extracomment>Exporter</extracomment>
        <translation>Ninguna película mide %1 × %2 píxeles.</translation>
    </message>
    <message>
        <source>The demo is too long for a movie.</source>
        <extracomment>Exporter</extracomment>
        <translation>La demo es demasiado larga para una película.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>La dirección del canal de actualizaciones no es segura.</translation>
    </message>
    <message>
        <source>This system has no secure connections to check for updates with.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>Este sistema no dispone de conexiones seguras para buscar actualizaciones.</translation>
    </message>
    <message>
        <source>The update server takes too long to answer.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>El servidor de actualizaciones tarda demasiado en responder.</translation>
    </message>
    <message>
        <source>The update feed is longer than %1.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>El canal de actualizaciones supera %1.</translation>
    </message>
    <message>
        <source>The update server %1 could not prove its identity.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>El servidor de actualizaciones %1 no pudo acreditar su identidad.</translation>
    </message>
    <message>
        <source>The update server redirects too often.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>El servidor de actualizaciones redirige demasiadas veces.</translation>
    </message>
    <message>
        <source>The update server redirects to an address that is not secure.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>El servidor de actualizaciones redirige a una dirección no segura.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>El servidor de actualizaciones respondió con el estado %1.</translation>
    </message>
    <message>
        <source>The update server %1 could not be reached.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>No se pudo contactar con el servidor de actualizaciones %1.</translation>
    </message>
    <message>
        <source>Change Pause</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Cambiar pausa</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Editar texto</translation>
    </message>
    <message>
        <source>Change Duration</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Cambiar duración</translation>
    </message>
    <message>
        <source>Change Frame Rate</source>
        <extracomment>FieldEditing</extracomment>
        <translation>Cambiar velocidad de fotogramas</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <extracomment>Fields</extracomment>
        <translation>no es un diccionario</translation>
    </message>
    <message>
        <source>step %1: %2</source>
        <extracomment>Fields</extracomment>
        <translation>paso %1: %2</translation>
    </message>
    <message>
        <source>missing “%1”</source>
        <extracomment>Fields</extracomment>
        <translation>falta «%1»</translation>
    </message>
    <message>
        <source>“%1” is not a string</source>
        <extracomment>Fields</extracomment>
        <translation>«%1» no es una cadena</translation>
    </message>
    <message>
        <source>“%1” is not a boolean</source>
        <extracomment>Fields</extracomment>
        <translation>«%1» no es un valor booleano</translation>
    </message>
    <message>
        <source>“%1” is not data</source>
        <extracomment>Fields</extracomment>
        <translation>«%1» no son datos binarios</translation>
    </message>
    <message>
        <source>“%1” is not an array</source>
        <extracomment>Fields</extracomment>
        <translation>«%1» no es una lista</translation>
    </message>
    <message>
        <source>“%1” is not finite</source>
        <extracomment>Fields</extracomment>
        <translation>«%1» no es finito</translation>
    </message>
    <message>
        <source>“%1” is not a number</source>
        <extracomment>Fields</extracomment>
        <translation>«%1» no es un número</translation>
    </message>
    <message>
        <source>“%1” is not an array of two numbers</source>
        <extracomment>Fields</extracomment>
        <translation>«%1» no es una lista de dos números</translation>
    </message>
    <message>
        <source>“%1” is not an integer</source>
        <extracomment>Fields</extracomment>
        <translation>«%1» no es un número entero</translation>
    </message>
    <message>
        <source>“%1” is out of range</source>
        <extracomment>Fields</extracomment>
        <translation>«%1» está fuera del intervalo permitido</translation>
    </message>
    <message>
        <source>“%1” is not a UUID: “%2”</source>
        <extracomment>Fields</extracomment>
        <translation>«%1» no es un UUID: «%2»</translation>
    </message>
    <message>
        <source>unknown kind “%1”</source>
        <extracomment>Fields</extracomment>
        <translation>tipo desconocido «%1»</translation>
    </message>
    <message>
        <source>cannot be written: another Velvane is writing in its folder</source>
        <extracomment>FolderLock</extracomment>
        <translation>no se puede escribir: otro Velvane está escribiendo en su carpeta</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels is not possible: sides are from 1 to %3 pixels</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>una película de %1 × %2 píxeles no es posible: los lados van de 1 a %3 píxeles</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels is not possible: it has %3 macroblocks, and H.264 allows %4</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>una película de %1 × %2 píxeles no es posible: tiene %3 macrobloques, y H.264 permite %4</translation>
    </message>
    <message>
        <source>%1 frames per second are not possible: at least 1</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>%1 fotogramas por segundo no son posibles: al menos 1</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels at %3 frames per second is not possible: it has %4 macroblocks per second, and H.264 allows %5</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>una película de %1 × %2 píxeles a %3 fotogramas por segundo no es posible: tiene %4 macrobloques por segundo, y H.264 permite %5</translation>
    </message>
    <message>
        <source>Actions are being recorded.</source>
        <extracomment>InputTurns</extracomment>
        <translation>Se están grabando acciones.</translation>
    </message>
    <message>
        <source>Delete Step</source>
        <extracomment>InspectorPane, StepList, StepCommands</extracomment>
        <translation>Eliminar paso</translation>
    </message>
    <message>
        <source>Delete this step</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Eliminar este paso</translation>
    </message>
    <message>
        <source>Delete Steps</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Eliminar pasos</translation>
    </message>
    <message>
        <source>Delete the selected steps</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Eliminar los pasos seleccionados</translation>
    </message>
    <message>
        <source>No step selected</source>
        <extracomment>InspectorPane</extracomment>
        <translation>Ningún paso seleccionado</translation>
    </message>
    <message>
        <source>%1 steps selected</source>
        <extracomment>InspectorPane</extracomment>
        <translation>%1 pasos seleccionados</translation>
    </message>
    <message>
        <source>not a property list</source>
        <extracomment>KeptDemo, velvane</extracomment>
        <translation>no es una lista de propiedades</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <extracomment>KeptSession</extracomment>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>Driving the real cursor — bring your target app forward</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Moviendo el puntero real: traiga al frente su aplicación</translation>
    </message>
    <message>
        <source>Switching to %1</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Cambiando a %1</translation>
    </message>
    <message>
        <source>Press Esc to abort</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Pulse Esc para cancelar</translation>
    </message>
    <message>
        <source>Live run in progress — Esc to stop</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Ejecución en vivo: Esc para detener</translation>
    </message>
    <message>
        <source>A live run is in progress.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Hay una ejecución en vivo en curso.</translation>
    </message>
    <message>
        <source>Add some steps first.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Añada primero algunos pasos.</translation>
    </message>
    <message>
        <source>Grant Accessibility permission to Velvane, then run again.</source>
        <extracomment>LiveRunController, RecordActionsController</extracomment>
        <translation>Conceda a Velvane el permiso de accesibilidad y ejecute de nuevo.</translation>
    </message>
    <message>
        <source>Esc cannot be watched for here, so nothing was run.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Aquí no se puede vigilar la tecla Esc, así que no se ejecutó nada.</translation>
    </message>
    <message>
        <source>Recording stopped: %1</source>
        <extracomment>LiveRunController, RecordActionsController</extracomment>
        <translation>Grabación detenida: %1</translation>
    </message>
    <message>
        <source>Couldn't start recording: %1</source>
        <extracomment>LiveRunController</extracomment>
        <translation>No se pudo iniciar la grabación: %1</translation>
    </message>
    <message>
        <source>Live run stopped: the display has gone.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Ejecución en vivo detenida: la pantalla ha desaparecido.</translation>
    </message>
    <message>
        <source>Live run stopped.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Ejecución en vivo detenida.</translation>
    </message>
    <message>
        <source>Live run finished.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Ejecución en vivo finalizada.</translation>
    </message>
    <message>
        <source>Recording saved to %1%2 — revealed in Finder.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>Grabación guardada en %1%2: se muestra en el gestor de archivos.</translation>
    </message>
    <message>
        <source> (window not found — recorded full screen)</source>
        <extracomment>LiveRunController</extracomment>
        <translation> (ventana no encontrada: se grabó la pantalla completa)</translation>
    </message>
    <message>
        <source>Position the cursor over the target — grabbing in %1s · Esc to cancel</source>
        <extracomment>LocationPicker</extracomment>
        <translation>Coloque el puntero sobre el objetivo: captura en %1 s · Esc para cancelar</translation>
    </message>
    <message>
        <source>another user's link stands in its place</source>
        <extracomment>MovieFile, WholeFile</extracomment>
        <translation>en su lugar hay un enlace de otro usuario</translation>
    </message>
    <message>
        <source>Not a regular file.</source>
        <extracomment>MovieInput</extracomment>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>The movie has no duration.</source>
        <extracomment>MovieInput</extracomment>
        <translation>La película no tiene duración.</translation>
    </message>
    <message>
        <source>The file holds no pictures.</source>
        <extracomment>MovieInput</extracomment>
        <translation>El archivo no contiene imágenes.</translation>
    </message>
    <message>
        <source>The movie is encrypted.</source>
        <extracomment>MovieInput</extracomment>
        <translation>La película está cifrada.</translation>
    </message>
    <message>
        <source>No movie can have this size.</source>
        <extracomment>MovieInput</extracomment>
        <translation>Ninguna película puede tener este tamaño.</translation>
    </message>
    <message>
        <source>The movie has no picture that can be decoded.</source>
        <extracomment>MovieReader</extracomment>
        <translation>La película no tiene ninguna imagen que se pueda descodificar.</translation>
    </message>
    <message>
        <source>↑ and ↓ change it by 0.1 s; with Shift, or Page Up and Page Down, by 1 s.</source>
        <extracomment>NumberField</extracomment>
        <translation>↑ y ↓ lo cambian en 0,1 s; con Mayús, o con Re Pág y Av Pág, en 1 s.</translation>
    </message>
    <message>
        <source>↑ and ↓ change it by 1; with Shift, or Page Up and Page Down, by 10.</source>
        <extracomment>NumberField</extracomment>
        <translation>↑ y ↓ lo cambian en 1; con Mayús, o con Re Pág y Av Pág, en 10.</translation>
    </message>
    <message>
        <source>Pick on screen — position the cursor over the target.</source>
        <extracomment>PickLocationController</extracomment>
        <translation>Elegir en pantalla: coloque el puntero sobre el objetivo.</translation>
    </message>
    <message>
        <source>Pick Location</source>
        <extracomment>PickLocationController</extracomment>
        <translation>Elegir posición</translation>
    </message>
    <message>
        <source>Captured target at (%1, %2)</source>
        <extracomment>PickLocationController</extracomment>
        <translation>Objetivo captado en (%1, %2)</translation>
    </message>
    <message>
        <source>Nothing here decodes %1.</source>
        <extracomment>PictureDecoder</extracomment>
        <translation>Nada aquí descodifica %1.</translation>
    </message>
    <message>
        <source>The movie's pictures cannot be decoded.</source>
        <extracomment>PictureDecoder</extracomment>
        <translation>No se pueden descodificar las imágenes de la película.</translation>
    </message>
    <message>
        <source>Step %1, %2</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Paso %1, %2</translation>
    </message>
    <message>
        <source>Preview canvas</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Lienzo de vista previa</translation>
    </message>
    <message>
        <source>Click to drop a Move waypoint or to set the selected target. The arrow keys nudge it, Z magnifies.</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Haga clic para colocar un punto de paso o el objetivo seleccionado. Las flechas lo desplazan y Z amplía.</translation>
    </message>
    <message>
        <source>Target %1 at (%2, %3)</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>Objetivo %1 en (%2, %3)</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>ProgressBar</extracomment>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>ProgressBar</extracomment>
        <translation>en %1</translation>
    </message>
    <message>
        <source>more than %1 steps</source>
        <extracomment>ProjectFile, velvane</extracomment>
        <translation>más de %1 pasos</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>Question</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Velvane</source>
        <extracomment>Question, RestorePanel, StartWindow</extracomment>
        <translation>Velvane</translation>
    </message>
    <message>
        <source>Today %1</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>Hoy %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>d 'de' MMMM</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>d 'de' MMMM 'de' yyyy</translation>
    </message>
    <message>
        <source>Recording starts in %1…</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>La grabación empieza en %1…</translation>
    </message>
    <message>
        <source>Couldn't start recording — grant Input Monitoring to Velvane in System Settings.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>No se pudo iniciar la grabación: conceda a Velvane la supervisión de entrada en los ajustes del sistema.</translation>
    </message>
    <message>
        <source>Recording stopped — no actions captured.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>Grabación detenida: no se captó ninguna acción.</translation>
    </message>
    <message>
        <source>Record Actions</source>
        <extracomment>RecordActionsController, StepCommands</extracomment>
        <translation>Grabar acciones</translation>
    </message>
    <message>
        <source>Recorded %1 step%2.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>%1 paso grabado%2.</translation>
    </message>
    <message>
        <source>Recorded %1 steps%2.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>%1 pasos grabados%2.</translation>
    </message>
    <message>
        <source> with screen recording</source>
        <extracomment>RecordActionsController</extracomment>
        <translation> con grabación de pantalla</translation>
    </message>
    <message>
        <source>This demo has no screen recording yet.</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>Esta demo aún no tiene grabación de pantalla.</translation>
    </message>
    <message>
        <source>Recording file is missing — backdrop unavailable.</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>Falta el archivo de la grabación: fondo no disponible.</translation>
    </message>
    <message>
        <source>Couldn't read the screen recording (%1).</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>No se pudo leer la grabación de pantalla (%1).</translation>
    </message>
    <message>
        <source>Velvane did not end properly the last time.</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Velvane no terminó correctamente la última vez.</translation>
    </message>
    <message>
        <source>These demos have changes that were not saved. What is not checked is offered again at the next start.</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Estas demos tienen cambios sin guardar. Lo que no marque se ofrecerá de nuevo en el próximo inicio.</translation>
    </message>
    <message>
        <source>Demos with changes that were not saved</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Demos con cambios sin guardar</translation>
    </message>
    <message>
        <source>Check the demos that you mean</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Marque las demos que desee</translation>
    </message>
    <message>
        <source>never saved</source>
        <extracomment>RestorePanel</extracomment>
        <translation>nunca guardada</translation>
    </message>
    <message>
        <source>%1 — %2, %3</source>
        <extracomment>RestorePanel</extracomment>
        <translation>%1 — %2, %3</translation>
    </message>
    <message>
        <source>Open the checked demos</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Abrir las demos marcadas</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Ask again at the next start</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Volver a preguntar en el próximo inicio</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Give up the changes of the checked demos</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Renunciar a los cambios de las demos marcadas</translation>
    </message>
    <message>
        <source>No display to record</source>
        <extracomment>RunRecorder</extracomment>
        <translation>No hay pantalla que grabar</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Abrir ajustes</translation>
    </message>
    <message>
        <source>Open the page that permits screen recording</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Abrir la página que permite grabar la pantalla</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Look again whether it is permitted</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Comprobar de nuevo si está permitido</translation>
    </message>
    <message>
        <source>Screen Recording permission needed</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Se necesita permiso para grabar la pantalla</translation>
    </message>
    <message>
        <source>Velvane shows your live screen as the backdrop so you can pick targets where they really are.</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Velvane muestra su pantalla en vivo como fondo para que elija los objetivos donde están de verdad.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Scrubber</extracomment>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Preview time</source>
        <extracomment>Scrubber</extracomment>
        <translation>Tiempo de la vista previa</translation>
    </message>
    <message>
        <source>Together</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Juntos</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>SeveralStepsForm, StepForm, TransportBar, DemoCommands, cli</extracomment>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Pause of all selected</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Pausa de todos los seleccionados</translation>
    </message>
    <message>
        <source>How long to rest after each of these actions</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Cuánto esperar tras cada una de estas acciones</translation>
    </message>
    <message>
        <source>s</source>
        <extracomment>SeveralStepsForm, StepForm</extracomment>
        <translation>s</translation>
    </message>
    <message>
        <source>Duplicate the selected steps</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>Duplicar los pasos seleccionados</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>SeveralStepsForm, StepListModel</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <extracomment>ShortcutRecorder</extracomment>
        <translation>Pulse teclas…</translation>
    </message>
    <message>
        <source>Record shortcut</source>
        <extracomment>ShortcutRecorder</extracomment>
        <translation>Grabar atajo</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>StartWindow, FileCommands</extracomment>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Make a new demo</source>
        <extracomment>StartWindow</extracomment>
        <translation>Crear una demo nueva</translation>
    </message>
    <message>
        <source>Open…</source>
        <extracomment>StartWindow, FileCommands</extracomment>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Open a demo from a file</source>
        <extracomment>StartWindow</extracomment>
        <translation>Abrir una demo desde un archivo</translation>
    </message>
    <message>
        <source>Recent demos</source>
        <extracomment>StartWindow</extracomment>
        <translation>Demos recientes</translation>
    </message>
    <message>
        <source>Open a recent demo</source>
        <extracomment>StartWindow</extracomment>
        <translation>Abrir una demo reciente</translation>
    </message>
    <message>
        <source>Demos that you open or save appear here.</source>
        <extracomment>StartWindow</extracomment>
        <translation>Las demos que abra o guarde aparecerán aquí.</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>StartWindow</extracomment>
        <translation>%1, en %2</translation>
    </message>
    <message>
        <source>%1 × %2 · %3%</source>
        <extracomment>StatusLineView</extracomment>
        <translation>%1 × %2 · %3 %</translation>
    </message>
    <message>
        <source>Canvas %1</source>
        <extracomment>StatusLineView</extracomment>
        <translation>Lienzo %1</translation>
    </message>
    <message>
        <source>Cut Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>Cortar pasos</translation>
    </message>
    <message>
        <source>Paste Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>Pegar pasos</translation>
    </message>
    <message>
        <source>Duplicate Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>Duplicar pasos</translation>
    </message>
    <message>
        <source>Center Window</source>
        <extracomment>StepEdits</extracomment>
        <translation>Centrar ventana</translation>
    </message>
    <message>
        <source>Set Shortcut</source>
        <extracomment>StepEdits</extracomment>
        <translation>Establecer atajo</translation>
    </message>
    <message>
        <source>Click the preview to set this target — or Pick on screen to grab the cursor's location after a countdown, for spots only visible while interacting (menus, popovers).</source>
        <extracomment>StepForm</extracomment>
        <translation>Haga clic en la vista previa para fijar este objetivo, o elija en pantalla para tomar la posición del puntero tras una cuenta atrás, en lugares visibles solo al interactuar (menús, ventanas emergentes).</translation>
    </message>
    <message>
        <source>A quick press and release at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>Una pulsación breve en el punto actual.</translation>
    </message>
    <message>
        <source>A secondary (right) click at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>Un clic secundario (derecho) en el punto actual.</translation>
    </message>
    <message>
        <source>Presses and holds the button. Add Move steps to drag, then a Release.</source>
        <extracomment>StepForm</extracomment>
        <translation>Pulsa el botón y lo mantiene. Añada pasos Mover para arrastrar y después Soltar.</translation>
    </message>
    <message>
        <source>Releases a held button — completes a drag.</source>
        <extracomment>StepForm</extracomment>
        <translation>Suelta el botón pulsado y termina un arrastre.</translation>
    </message>
    <message>
        <source>Press the key combo to record it (e.g. ⌘C). It fires at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>Pulse la combinación de teclas para grabarla (p. ej., ⌘C). Se envía en el punto actual.</translation>
    </message>
    <message>
        <source>Pauses for the time shown on the right of the step row.</source>
        <extracomment>StepForm</extracomment>
        <translation>Espera el tiempo que figura a la derecha de la fila del paso.</translation>
    </message>
    <message>
        <source>A heading to organize the flow. It does nothing when the demo runs.</source>
        <extracomment>StepForm</extracomment>
        <translation>Un título para organizar el flujo. No hace nada al ejecutar la demo.</translation>
    </message>
    <message>
        <source>Target</source>
        <extracomment>StepForm</extracomment>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>Target %1</source>
        <extracomment>StepForm</extracomment>
        <translation>Objetivo %1</translation>
    </message>
    <message>
        <source>How far from the canvas's left edge</source>
        <extracomment>StepForm</extracomment>
        <translation>Distancia al borde izquierdo del lienzo</translation>
    </message>
    <message>
        <source>How far from the canvas's top edge</source>
        <extracomment>StepForm</extracomment>
        <translation>Distancia al borde superior del lienzo</translation>
    </message>
    <message>
        <source>Pick on screen</source>
        <extracomment>StepForm</extracomment>
        <translation>Elegir en pantalla</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>StepForm</extracomment>
        <translation>Texto</translation>
    </message>
    <message>
        <source>The text to type, line breaks included</source>
        <extracomment>StepForm</extracomment>
        <translation>El texto que se escribirá, con sus saltos de línea</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>StepForm</extracomment>
        <translation>Título</translation>
    </message>
    <message>
        <source>The heading in the step list</source>
        <extracomment>StepForm</extracomment>
        <translation>El título en la lista de pasos</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>StepForm, velvane</extracomment>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>App</source>
        <extracomment>StepForm</extracomment>
        <translation>App</translation>
    </message>
    <message>
        <source>Center window</source>
        <extracomment>StepForm</extracomment>
        <translation>Centrar ventana</translation>
    </message>
    <message>
        <source>Center the app's front window on the screen</source>
        <extracomment>StepForm</extracomment>
        <translation>Centrar en la pantalla la ventana frontal de la aplicación</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>StepForm</extracomment>
        <translation>Duración</translation>
    </message>
    <message>
        <source>How long the action takes</source>
        <extracomment>StepForm</extracomment>
        <translation>Cuánto dura la acción</translation>
    </message>
    <message>
        <source>How long to rest after the action</source>
        <extracomment>StepForm</extracomment>
        <translation>Cuánto esperar tras la acción</translation>
    </message>
    <message>
        <source>Grab the cursor's location after a countdown</source>
        <extracomment>StepForm</extracomment>
        <translation>Tomar la posición del puntero tras una cuenta atrás</translation>
    </message>
    <message>
        <source>Move to</source>
        <extracomment>StepKind</extracomment>
        <translation>Mover a</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>StepKind</extracomment>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Click</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Clic</translation>
    </message>
    <message>
        <source>Right-click</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Clic derecho</translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>StepKind</extracomment>
        <translation>Derecho</translation>
    </message>
    <message>
        <source>Hold (mouse down)</source>
        <extracomment>StepKind</extracomment>
        <translation>Mantener (botón pulsado)</translation>
    </message>
    <message>
        <source>Hold</source>
        <extracomment>StepKind</extracomment>
        <translation>Mantener</translation>
    </message>
    <message>
        <source>Release (mouse up)</source>
        <extracomment>StepKind</extracomment>
        <translation>Soltar (botón)</translation>
    </message>
    <message>
        <source>Release</source>
        <extracomment>StepKind</extracomment>
        <translation>Soltar</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Escribir</translation>
    </message>
    <message>
        <source>Keyboard shortcut</source>
        <extracomment>StepKind</extracomment>
        <translation>Atajo de teclado</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Wait</source>
        <extracomment>StepKind</extracomment>
        <translation>Esperar</translation>
    </message>
    <message>
        <source>Switch app</source>
        <extracomment>StepKind</extracomment>
        <translation>Cambiar de app</translation>
    </message>
    <message>
        <source>Switch</source>
        <extracomment>StepKind</extracomment>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Section</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>Sección</translation>
    </message>
    <message>
        <source>Reorder Steps</source>
        <extracomment>StepList</extracomment>
        <translation>Reordenar pasos</translation>
    </message>
    <message>
        <source>Set App</source>
        <extracomment>StepList</extracomment>
        <translation>Establecer aplicación</translation>
    </message>
    <message>
        <source>Add a step</source>
        <extracomment>StepListPane</extracomment>
        <translation>Nuevo paso</translation>
    </message>
    <message>
        <source>Run Live from Here</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Ejecutar en vivo desde aquí</translation>
    </message>
    <message>
        <source>Expand section</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Expandir sección</translation>
    </message>
    <message>
        <source>Collapse section</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Contraer sección</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Steps</source>
        <extracomment>StepListView</extracomment>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>%1 / %2s</source>
        <extracomment>TimeSlider</extracomment>
        <translation>%1 / %2 s</translation>
    </message>
    <message>
        <source>Go to Start</source>
        <extracomment>TransportBar, DemoCommands</extracomment>
        <translation>Ir al inicio</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>TransportBar, DemoCommands</extracomment>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>No update feed is configured, so Velvane cannot check for updates.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>No hay ningún canal de actualizaciones configurado, por lo que Velvane no puede buscarlas.</translation>
    </message>
    <message>
        <source>Velvane %1 is the newest version.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Velvane %1 es la versión más reciente.</translation>
    </message>
    <message>
        <source>Velvane %1 is available.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Velvane %1 está disponible.</translation>
    </message>
    <message>
        <source>You have version %1. The download page opens in your browser.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Tiene la versión %1. La página de descarga se abrirá en el navegador.</translation>
    </message>
    <message>
        <source>Recording time</source>
        <extracomment>VideoScrubBar</extracomment>
        <translation>Tiempo de la grabación</translation>
    </message>
    <message>
        <source>Time in the recording</source>
        <extracomment>VideoScrubBar</extracomment>
        <translation>Tiempo en la grabación</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>WindowCommands</extracomment>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>There is no connection to an X server.</source>
        <extracomment>X11Camera, X11Screens</extracomment>
        <translation>No hay conexión con un servidor X.</translation>
    </message>
    <message>
        <source>The X server stores pixels in another byte order.</source>
        <extracomment>X11Camera</extracomment>
        <translation>El servidor X guarda los píxeles en otro orden de bytes.</translation>
    </message>
    <message>
        <source>The region to record lies outside the display.</source>
        <extracomment>X11Camera</extracomment>
        <translation>La zona que se iba a grabar queda fuera de la pantalla.</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <extracomment>X11CaptureStream</extracomment>
        <translation>El servidor X ha desaparecido.</translation>
    </message>
    <message>
        <source>no display</source>
        <extracomment>X11Desktop</extracomment>
        <translation>ninguna pantalla</translation>
    </message>
    <message>
        <source>X11 display %1</source>
        <extracomment>X11Desktop</extracomment>
        <translation>pantalla X11 %1</translation>
    </message>
    <message>
        <source>%1, with a compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, con compositor</translation>
    </message>
    <message>
        <source>%1, without a compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, sin compositor</translation>
    </message>
    <message>
        <source>Window manager</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Gestor de ventanas</translation>
    </message>
    <message>
        <source>none that can be asked (EWMH)</source>
        <extracomment>X11Desktop</extracomment>
        <translation>ninguno que se pueda consultar (EWMH)</translation>
    </message>
    <message>
        <source>%1, can be asked (EWMH)</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, se puede consultar (EWMH)</translation>
    </message>
    <message>
        <source>%1, without %2</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1, sin %2</translation>
    </message>
    <message>
        <source>Switching applications or moving their windows may not work; use another window manager.</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Puede que no funcione cambiar de aplicación o mover sus ventanas; use otro gestor de ventanas.</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Vigilante</translation>
    </message>
    <message>
        <source>releases what is held if Velvane ends</source>
        <extracomment>X11Desktop</extracomment>
        <translation>suelta lo pulsado si Velvane termina</translation>
    </message>
    <message>
        <source>missing</source>
        <extracomment>X11Desktop</extracomment>
        <translation>falta</translation>
    </message>
    <message>
        <source>Install Velvane again: velvane-watchdog is not beside it.</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Instale Velvane de nuevo: velvane-watchdog no está a su lado.</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>X11Desktop</extracomment>
        <translation>en ejecución</translation>
    </message>
    <message>
        <source>none; none is needed</source>
        <extracomment>X11Desktop</extracomment>
        <translation>ninguno; no hace falta</translation>
    </message>
    <message>
        <source>Compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>There is no display.</source>
        <extracomment>X11Desktop, X11InputSynthesizer, X11Listener, X11WindowManager</extracomment>
        <translation>No hay ninguna pantalla.</translation>
    </message>
    <message>
        <source>In a Wayland session only programs that use X11 could be driven: log in with an X11 session instead.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>En una sesión de Wayland solo podrían manejarse programas que usan X11: inicie una sesión de X11.</translation>
    </message>
    <message>
        <source>This X server lets no program post input: it lacks the XTEST extension.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>Este servidor X no permite a los programas enviar entradas: le falta la extensión XTEST.</translation>
    </message>
    <message>
        <source>velvane-watchdog, which releases what is held if Velvane ends, is missing: install Velvane again.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>Falta velvane-watchdog, que suelta lo pulsado si Velvane termina: instale Velvane de nuevo.</translation>
    </message>
    <message>
        <source>%1 takes a connection to the X server, and there is none.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 requiere una conexión con el servidor X, y no la hay.</translation>
    </message>
    <message>
        <source>%1 reaches only X11 windows in a Wayland session. Log in with an X11 session instead.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 solo alcanza ventanas X11 en una sesión de Wayland. Inicie una sesión de X11.</translation>
    </message>
    <message>
        <source>%1 takes what this X server lacks: %2. Enable it in the server, and use a local or trusted connection.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1 requiere algo que le falta a este servidor X: %2. Actívelo en el servidor y use una conexión local o de confianza.</translation>
    </message>
    <message>
        <source>%1 is refused by this X server. Use a local or trusted connection.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1: este servidor X lo deniega. Use una conexión local o de confianza.</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>No falta nada.</translation>
    </message>
    <message>
        <source>Only X11 windows can be controlled in a Wayland session. Log in with an X11 session instead.</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>En una sesión de Wayland solo se pueden controlar ventanas X11. Inicie una sesión de X11.</translation>
    </message>
    <message>
        <source>No window manager that can be asked (EWMH) is running. Start one.</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>No se está ejecutando ningún gestor de ventanas que se pueda consultar (EWMH). Inicie uno.</translation>
    </message>
    <message>
        <source>without a name</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>sin nombre</translation>
    </message>
    <message>
        <source>damaged property list: line %1, column %2: %3</source>
        <extracomment>XmlReader</extracomment>
        <translation>lista de propiedades dañada: línea %1, columna %2: %3</translation>
    </message>
    <message>
        <source>the display %1 cannot be opened</source>
        <extracomment>cli</extracomment>
        <translation>no se puede abrir la pantalla %1</translation>
    </message>
    <message>
        <source>there is no display to open a window on</source>
        <extracomment>cli</extracomment>
        <translation>no hay pantalla en la que abrir una ventana</translation>
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
        <translation>Acerca de Velvane</translation>
    </message>
    <message>
        <source>Velvane %1</source>
        <extracomment>velvane</extracomment>
        <translation>Velvane %1</translation>
    </message>
    <message>
        <source>Scripted screen demonstrations.</source>
        <extracomment>velvane</extracomment>
        <translation>Demostraciones de pantalla con guion.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Demo</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Demo</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <extracomment>velvane</extracomment>
        <translation>&amp;Paso</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <extracomment>velvane</extracomment>
        <translation>Ve&amp;ntana</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>velvane</extracomment>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Wait %1s</source>
        <extracomment>velvane</extracomment>
        <translation>Esperar %1 s</translation>
    </message>
    <message>
        <source>is a folder</source>
        <extracomment>velvane</extracomment>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <extracomment>velvane</extracomment>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>too large, %1 bytes</source>
        <extracomment>velvane</extracomment>
        <translation>demasiado grande, %1 bytes</translation>
    </message>
    <message>
        <source>no such file</source>
        <extracomment>velvane</extracomment>
        <translation>no existe el archivo</translation>
    </message>
    <message>
        <source>Move to (%1, %2)</source>
        <extracomment>velvane</extracomment>
        <translation>Mover a (%1, %2)</translation>
    </message>
    <message>
        <source>Hold mouse down</source>
        <extracomment>velvane</extracomment>
        <translation>Mantener pulsado el ratón</translation>
    </message>
    <message>
        <source>Release mouse</source>
        <extracomment>velvane</extracomment>
        <translation>Soltar el ratón</translation>
    </message>
    <message>
        <source>Type "%1"</source>
        <extracomment>velvane</extracomment>
        <translation>Escribir «%1»</translation>
    </message>
    <message>
        <source>Press %1</source>
        <extracomment>velvane</extracomment>
        <translation>Pulsar %1</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <extracomment>velvane</extracomment>
        <translation>Cambiar a %1</translation>
    </message>
    <message>
        <source>app</source>
        <extracomment>velvane</extracomment>
        <translation>aplicación</translation>
    </message>
    <message>
        <source>Driving the mouse and keyboard</source>
        <extracomment>velvane</extracomment>
        <translation>Manejar el ratón y el teclado</translation>
    </message>
    <message>
        <source>Listening to the mouse and keyboard</source>
        <extracomment>velvane</extracomment>
        <translation>Escuchar el ratón y el teclado</translation>
    </message>
    <message>
        <source>Taking pictures of the screen</source>
        <extracomment>velvane</extracomment>
        <translation>Capturar la pantalla</translation>
    </message>
    <message>
        <source>The update feed is not signed.</source>
        <extracomment>velvane</extracomment>
        <translation>El canal de actualizaciones no está firmado.</translation>
    </message>
    <message>
        <source>The signature of the update feed is wrong.</source>
        <extracomment>velvane</extracomment>
        <translation>La firma del canal de actualizaciones es incorrecta.</translation>
    </message>
    <message>
        <source>The update feed is older than one that was read before.</source>
        <extracomment>velvane</extracomment>
        <translation>El canal de actualizaciones es más antiguo que uno ya leído.</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <extracomment>DemoCommands</extracomment>
        <translation>No grabar</translation>
    </message>
    <message>
        <source>Record Screen</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Grabar pantalla</translation>
    </message>
    <message>
        <source>Record Active Window</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Grabar ventana activa</translation>
    </message>
    <message>
        <source>Screen Recording</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Grabación de pantalla</translation>
    </message>
    <message>
        <source>Show Mouse Cursor</source>
        <extracomment>DemoCommands</extracomment>
        <translation>Mostrar el puntero del ratón</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <extracomment>FileCommands</extracomment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <extracomment>FileCommands</extracomment>
        <translation>Vaciar menú</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <extracomment>FileCommands</extracomment>
        <translation>Abrir reciente</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>FileCommands</extracomment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>FileCommands</extracomment>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Velvane demos (*.velvane)</source>
        <extracomment>FilePanel</extracomment>
        <translation>Demos de Velvane (*.velvane)</translation>
    </message>
    <message>
        <source>“%1” already exists.</source>
        <extracomment>FilePanel</extracomment>
        <translation>«%1» ya existe.</translation>
    </message>
    <message>
        <source>Replacing it loses what it holds.</source>
        <extracomment>FilePanel</extracomment>
        <translation>Al reemplazarlo se pierde lo que contiene.</translation>
    </message>
    <message>
        <source>Open Demo</source>
        <extracomment>FilePanel</extracomment>
        <translation>Abrir demo</translation>
    </message>
    <message>
        <source>Save Demo</source>
        <extracomment>FilePanel</extracomment>
        <translation>Guardar demo</translation>
    </message>
    <message>
        <source>The documentation could not be opened.</source>
        <extracomment>HelpCommands</extracomment>
        <translation>No se pudo abrir la documentación.</translation>
    </message>
    <message>
        <source>It is found at %1.</source>
        <extracomment>HelpCommands, UpdaterCommands</extracomment>
        <translation>Se encuentra en %1.</translation>
    </message>
    <message>
        <source>Velvane Help</source>
        <extracomment>HelpCommands</extracomment>
        <translation>Ayuda de Velvane</translation>
    </message>
    <message>
        <source>Velvane was installed as a Flatpak, which brings its updates.</source>
        <extracomment>PackageOwner</extracomment>
        <translation>Velvane se instaló como Flatpak, que también trae sus actualizaciones.</translation>
    </message>
    <message>
        <source>Velvane was installed by the package manager, which brings its updates.</source>
        <extracomment>PackageOwner</extracomment>
        <translation>Velvane lo instaló el gestor de paquetes, que también trae sus actualizaciones.</translation>
    </message>
    <message>
        <source>The update feed is malformed.</source>
        <extracomment>Reader</extracomment>
        <translation>El canal de actualizaciones está mal formado.</translation>
    </message>
    <message>
        <source>The update feed has no valid “%1”.</source>
        <extracomment>Reader</extracomment>
        <translation>El canal de actualizaciones no tiene «%1» válido.</translation>
    </message>
    <message>
        <source>Session bus</source>
        <extracomment>SessionServices</extracomment>
        <translation>Bus de sesión</translation>
    </message>
    <message>
        <source>answers</source>
        <extracomment>SessionServices</extracomment>
        <translation>responde</translation>
    </message>
    <message>
        <source>none</source>
        <extracomment>SessionServices, cli</extracomment>
        <translation>no hay</translation>
    </message>
    <message>
        <source>Start Velvane from the desktop, or below dbus-run-session: windows cannot be shared with a running Velvane without it.</source>
        <extracomment>SessionServices</extracomment>
        <translation>Inicie Velvane desde el escritorio o bajo dbus-run-session: sin él, las ventanas no se pueden compartir con un Velvane en ejecución.</translation>
    </message>
    <message>
        <source>Desktop portal</source>
        <extracomment>SessionServices</extracomment>
        <translation>Portal escritorio</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>SessionServices</extracomment>
        <translation>presente</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the one of your desktop, so that dark and light follow the system.</source>
        <extracomment>SessionServices</extracomment>
        <translation>Instale xdg-desktop-portal y el de su escritorio para que el modo claro u oscuro siga al sistema.</translation>
    </message>
    <message>
        <source>File manager</source>
        <extracomment>SessionServices</extracomment>
        <translation>Gestor archivos</translation>
    </message>
    <message>
        <source>shows a file in its folder</source>
        <extracomment>SessionServices</extracomment>
        <translation>muestra un archivo en su carpeta</translation>
    </message>
    <message>
        <source>opens a file's folder</source>
        <extracomment>SessionServices</extracomment>
        <translation>abre la carpeta de un archivo</translation>
    </message>
    <message>
        <source>none can be asked</source>
        <extracomment>SessionServices</extracomment>
        <translation>no se puede consultar ninguno</translation>
    </message>
    <message>
        <source>Install a file manager, and xdg-utils, so that recordings can be shown.</source>
        <extracomment>SessionServices</extracomment>
        <translation>Instale un gestor de archivos y xdg-utils para poder mostrar las grabaciones.</translation>
    </message>
    <message>
        <source>can be started</source>
        <extracomment>SessionServices</extracomment>
        <translation>se pueden iniciar</translation>
    </message>
    <message>
        <source>only running ones can be switched to</source>
        <extracomment>SessionServices</extracomment>
        <translation>solo se puede cambiar a las que están en ejecución</translation>
    </message>
    <message>
        <source>Start them before a live run, or allow it: %1</source>
        <extracomment>SessionServices</extracomment>
        <translation>Inícielas antes de una ejecución en vivo o permítalo: %1</translation>
    </message>
    <message>
        <source>Add Step</source>
        <extracomment>StepCommands</extracomment>
        <translation>Añadir paso</translation>
    </message>
    <message>
        <source>Recording — Esc to Stop</source>
        <extracomment>StepCommands</extracomment>
        <translation>Grabando: Esc para detener</translation>
    </message>
    <message>
        <source>Pick Location on Screen…</source>
        <extracomment>StepCommands</extracomment>
        <translation>Elegir posición en pantalla…</translation>
    </message>
    <message>
        <source>The download page could not be opened.</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>No se pudo abrir la página de descarga.</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Abrir página de descarga</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Check for Updates Automatically</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Buscar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Velvane %1 is available: see “Check for Updates…” in the menu “Help”.</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Velvane %1 está disponible: vea «Buscar actualizaciones…» en el menú «Ayuda».</translation>
    </message>
    <message>
        <source>Live Backdrop</source>
        <extracomment>ViewCommands</extracomment>
        <translation>Fondo en vivo</translation>
    </message>
    <message>
        <source>Recording Backdrop</source>
        <extracomment>ViewCommands</extracomment>
        <translation>Grabación de fondo</translation>
    </message>
    <message>
        <source>Zoom 4×</source>
        <extracomment>ViewCommands</extracomment>
        <translation>Ampliar 4×</translation>
    </message>
    <message>
        <source>lacks %1</source>
        <extracomment>X11Facts</extracomment>
        <translation>falta %1</translation>
    </message>
    <message>
        <source>Enable %1 in the X server: without it %2.</source>
        <extracomment>X11Facts</extracomment>
        <translation>Active %1 en el servidor X: sin ello %2.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <extracomment>X11Facts</extracomment>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <extracomment>X11Facts</extracomment>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>Enable XKEYBOARD in the X server: without it nothing is typed as written.</source>
        <extracomment>X11Facts</extracomment>
        <translation>Active XKEYBOARD en el servidor X: sin ello nada se escribe como está.</translation>
    </message>
    <message>
        <source>layout not named</source>
        <extracomment>X11Facts</extracomment>
        <translation>distribución sin nombre</translation>
    </message>
    <message>
        <source>layout %1</source>
        <extracomment>X11Facts</extracomment>
        <translation>distribución %1</translation>
    </message>
    <message>
        <source>Posting</source>
        <extracomment>X11Facts</extracomment>
        <translation>Envío</translation>
    </message>
    <message>
        <source>nothing is clicked or typed</source>
        <extracomment>X11Facts</extracomment>
        <translation>no se hace clic ni se escribe nada</translation>
    </message>
    <message>
        <source>Listening</source>
        <extracomment>X11Facts</extracomment>
        <translation>Escucha</translation>
    </message>
    <message>
        <source>actions are not heard and Esc does not stop a run</source>
        <extracomment>X11Facts</extracomment>
        <translation>no se oyen las acciones y Esc no detiene una ejecución</translation>
    </message>
    <message>
        <source>Pictures</source>
        <extracomment>X11Facts</extracomment>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>the screen is neither shown nor recorded</source>
        <extracomment>X11Facts</extracomment>
        <translation>la pantalla ni se muestra ni se graba</translation>
    </message>
    <message>
        <source>Fast pictures</source>
        <extracomment>X11Facts</extracomment>
        <translation>Imágenes rápidas</translation>
    </message>
    <message>
        <source>pictures of the screen come slowly</source>
        <extracomment>X11Facts</extracomment>
        <translation>las imágenes de la pantalla llegan despacio</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>X11Facts</extracomment>
        <translation>Pantallas</translation>
    </message>
    <message>
        <source>several displays are taken for one</source>
        <extracomment>X11Facts</extracomment>
        <translation>varias pantallas se toman por una sola</translation>
    </message>
    <message>
        <source>Usage</source>
        <extracomment>cli</extracomment>
        <translation>Uso</translation>
    </message>
    <message>
        <source>Positionals</source>
        <extracomment>cli</extracomment>
        <translation>Argumentos</translation>
    </message>
    <message>
        <source>Subcommands</source>
        <extracomment>cli</extracomment>
        <translation>Subcomandos</translation>
    </message>
    <message>
        <source>Print this help message and exit</source>
        <extracomment>cli</extracomment>
        <translation>Mostrar esta ayuda y salir</translation>
    </message>
    <message>
        <source>Display program version information and exit</source>
        <extracomment>cli</extracomment>
        <translation>Mostrar la versión y salir</translation>
    </message>
    <message>
        <source>This Flatpak cannot reach it. Give it the folder: %1</source>
        <extracomment>cli</extracomment>
        <translation>Este Flatpak no puede acceder a él. Dele la carpeta: %1</translation>
    </message>
    <message>
        <source>Write a demo in the binary format, from binary or XML</source>
        <extracomment>cli</extracomment>
        <translation>Escribir en formato binario una demo binaria o XML</translation>
    </message>
    <message>
        <source>The demo to read</source>
        <extracomment>cli</extracomment>
        <translation>La demo que se lee</translation>
    </message>
    <message>
        <source>The file to write; an existing one is replaced</source>
        <extracomment>cli</extracomment>
        <translation>El archivo que se escribe; si existe, se reemplaza</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Read a demo, as a binary or an XML property list, and write it in the
  binary format. Keys that no demo has are left out. OUT is written whole or
  not at all, so it may be IN.

EXAMPLE
  velvane convert tour.xml tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>DESCRIPCIÓN
  Lee una demo, lista de propiedades binaria o XML, y la escribe en formato
  binario. Las claves que ninguna demo tiene se omiten. OUT se escribe entero
  o nada, así que puede ser IN.

EJEMPLO
  velvane convert tour.xml tour.velvane</translation>
    </message>
    <message>
        <source>%1: is not writable</source>
        <extracomment>cli</extracomment>
        <translation>%1: no se puede escribir</translation>
    </message>
    <message>
        <source>The screen (%1) is larger than the canvas (%2): what lies beyond is recorded at the canvas's edge.</source>
        <extracomment>cli</extracomment>
        <translation>La pantalla (%1) es más grande que el lienzo (%2): lo que queda más allá se graba en su borde.</translation>
    </message>
    <message>
        <source>%1; the recorded steps are in %2</source>
        <extracomment>cli</extracomment>
        <translation>%1; los pasos grabados están en %2</translation>
    </message>
    <message>
        <source>%1 frames per second</source>
        <extracomment>cli</extracomment>
        <translation>%1 fotogramas por segundo</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <extracomment>cli</extracomment>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>picture of %1 × %2</source>
        <extracomment>cli</extracomment>
        <translation>imagen de %1 × %2</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>cli</extracomment>
        <translation>sí</translation>
    </message>
    <message>
        <source>Total</source>
        <extracomment>cli</extracomment>
        <translation>Total</translation>
    </message>
    <message>
        <source>Step</source>
        <extracomment>cli</extracomment>
        <translation>Paso</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>cli</extracomment>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>cli</extracomment>
        <translation>Acción</translation>
    </message>
    <message>
        <source>there is no step “%1”</source>
        <extracomment>cli</extracomment>
        <translation>no existe el paso «%1»</translation>
    </message>
    <message>
        <source>Say what this session can and cannot do, with remedies</source>
        <extracomment>cli</extracomment>
        <translation>Decir qué puede y qué no puede hacer esta sesión, con remedios</translation>
    </message>
    <message>
        <source>Print one JSON array instead of lines</source>
        <extracomment>cli</extracomment>
        <translation>Escribir una lista JSON en vez de líneas</translation>
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
        <translation>DESCRIPCIÓN
  Dice qué puede y qué no puede hacer esta sesión, una línea por capacidad,
  con el remedio debajo de lo que falta. No se cambia nada ni se muestra nada
  en la pantalla.

JSON
  Un objeto por capacidad: what, works, state, remedy o null.

EJEMPLO
  velvane doctor --json | jq -r '.[] | select(.works | not) | .remedy'</translation>
    </message>
    <message>
        <source>frames</source>
        <extracomment>cli</extracomment>
        <translation>fotogramas</translation>
    </message>
    <message>
        <source>%1: the movie would replace the demo</source>
        <extracomment>cli</extracomment>
        <translation>%1: la película reemplazaría la demo</translation>
    </message>
    <message>
        <source>Export cancelled; %1 holds what was done.</source>
        <extracomment>cli</extracomment>
        <translation>Exportación cancelada; %1 contiene lo ya hecho.</translation>
    </message>
    <message>
        <source>Render a demo to a movie</source>
        <extracomment>cli</extracomment>
        <translation>Convertir una demo en película</translation>
    </message>
    <message>
        <source>The demo to render</source>
        <extracomment>cli</extracomment>
        <translation>La demo que se convierte</translation>
    </message>
    <message>
        <source>The movie to write</source>
        <extracomment>cli</extracomment>
        <translation>La película que se escribe</translation>
    </message>
    <message>
        <source>When the export fails, print the reason on a second line</source>
        <extracomment>cli</extracomment>
        <translation>Si falla la exportación, indicar el motivo en una segunda línea</translation>
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
        <translation>DESCRIPCIÓN
  Convierte una demo en una película H.264 en un archivo MPEG-4, con el tamaño
  del lienzo y la velocidad de fotogramas de la demo. Un archivo en MP4 se
  reemplaza. El progreso va a la salida de error: una barra en un terminal; si
  no, una línea por cada décimo.

  Ctrl-C cierra la película con los fotogramas ya hechos, que se puede
  reproducir, y termina con el estado 130.

EJEMPLO
  velvane export tour.velvane tour.mp4</translation>
    </message>
    <message>
        <source>%1: the picture would replace the demo</source>
        <extracomment>cli</extracomment>
        <translation>%1: la imagen reemplazaría la demo</translation>
    </message>
    <message>
        <source>%1: a canvas of %2 × %3 cannot be drawn</source>
        <extracomment>cli</extracomment>
        <translation>%1: no se puede dibujar un lienzo de %2 × %3</translation>
    </message>
    <message>
        <source>Render one moment of a demo to a picture</source>
        <extracomment>cli</extracomment>
        <translation>Convertir un instante de una demo en imagen</translation>
    </message>
    <message>
        <source>The demo</source>
        <extracomment>cli</extracomment>
        <translation>La demo</translation>
    </message>
    <message>
        <source>The moment in seconds</source>
        <extracomment>cli</extracomment>
        <translation>El instante en segundos</translation>
    </message>
    <message>
        <source>The picture to write</source>
        <extracomment>cli</extracomment>
        <translation>La imagen que se escribe</translation>
    </message>
    <message>
        <source>Make it no wider and no higher than this</source>
        <extracomment>cli</extracomment>
        <translation>No hacerla más ancha ni más alta que esto</translation>
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
        <translation>DESCRIPCIÓN
  Convierte un instante de una demo en una imagen PNG del tamaño del lienzo:
  lo que una película muestra en ese instante. Un instante fuera de la demo
  muestra el primero o el último. Con --size se reduce una imagen más grande.

EJEMPLOS
  velvane frame tour.velvane --at 2.5 --output still.png
  velvane frame tour.velvane --at 0 --size 256 --output thumbnail.png</translation>
    </message>
    <message>
        <source>Show what a demo holds and when it happens</source>
        <extracomment>cli</extracomment>
        <translation>Mostrar qué contiene una demo y cuándo sucede</translation>
    </message>
    <message>
        <source>The demo to show</source>
        <extracomment>cli</extracomment>
        <translation>La demo que se muestra</translation>
    </message>
    <message>
        <source>Print one JSON object instead of a table</source>
        <extracomment>cli</extracomment>
        <translation>Escribir un objeto JSON en vez de una tabla</translation>
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
        <translation>DESCRIPCIÓN
  Muestra una demo: sus ajustes, sus pasos como en la lista y cuándo empieza y
  termina cada uno. Los tiempos son segundos.

JSON
  version, fps, canvasSize [anchura, altura], startPoint [x, y],
  hasBackground, hasRecording, total, steps, segments.
  Un paso: id, kind, point [x, y], text, duration, pauseAfter, keyCode,
  modifiers, centerWindow, collapsed, recordedOffset o null, number o null,
  summary, shortcutDisplay, visible.
  Un segmento: step (índice en steps), id, start, end, actionDuration,
  startPos, endPos, heldEntering.

EJEMPLO
  velvane inspect tour.velvane --json | jq .total</translation>
    </message>
    <message>
        <source>%1: the file exists; --force replaces it</source>
        <extracomment>cli</extracomment>
        <translation>%1: el archivo existe; --force lo reemplaza</translation>
    </message>
    <message>
        <source>Write a new demo with the defaults</source>
        <extracomment>cli</extracomment>
        <translation>Escribir una demo nueva con los valores predeterminados</translation>
    </message>
    <message>
        <source>The file to write, usually NAME.velvane</source>
        <extracomment>cli</extracomment>
        <translation>El archivo que se escribe, por lo general NOMBRE.velvane</translation>
    </message>
    <message>
        <source>Replace the file if it exists</source>
        <extracomment>cli</extracomment>
        <translation>Reemplazar el archivo si existe</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Write a new demo with the defaults: a canvas of 1280 × 800, 60 frames a
  second, the cursor in the middle, and one step that switches to no
  application yet.

EXAMPLE
  velvane new tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>DESCRIPCIÓN
  Escribe una demo nueva con los valores predeterminados: un lienzo de
  1280 × 800, 60 fotogramas por segundo, el puntero en el centro y un paso que
  aún no cambia a ninguna aplicación.

EJEMPLO
  velvane new tour.velvane</translation>
    </message>
    <message>
        <source>Record real mouse and keyboard actions into a demo</source>
        <extracomment>cli</extracomment>
        <translation>Grabar en una demo acciones reales de ratón y teclado</translation>
    </message>
    <message>
        <source>The demo that the steps are appended to</source>
        <extracomment>cli</extracomment>
        <translation>La demo a la que se añaden los pasos</translation>
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
        <translation>DESCRIPCIÓN
  Graba lo que se hace con el ratón y el teclado, tras una cuenta atrás de
  2,1 segundos, hasta que se pulsa Esc, tenga quien tenga el teclado; Ctrl-C y
  SIGTERM también la terminan. Nada se oculta a los programas en uso. Los pasos
  se añaden a la demo, y la demo se guarda.

  El resultado va a la salida estándar. El estado es 0, también si no se grabó
  nada y la demo queda como estaba, y 1 si no pudo empezar o si no se pudo
  guardar la demo.

EJEMPLO
  velvane new tour.velvane &amp;&amp; velvane record tour.velvane</translation>
    </message>
    <message>
        <source>Perform a demo on the real desktop</source>
        <extracomment>cli</extracomment>
        <translation>Ejecutar una demo en el escritorio real</translation>
    </message>
    <message>
        <source>The demo to perform</source>
        <extracomment>cli</extracomment>
        <translation>La demo que se ejecuta</translation>
    </message>
    <message>
        <source>Begin with this step: an id or a number</source>
        <extracomment>cli</extracomment>
        <translation>Empezar por este paso: un identificador o un número</translation>
    </message>
    <message>
        <source>When switching to an application, hide all others</source>
        <extracomment>cli</extracomment>
        <translation>Al cambiar a una aplicación, ocultar todas las demás</translation>
    </message>
    <message>
        <source>Record: off, screen or window</source>
        <extracomment>cli</extracomment>
        <translation>Grabar: off, screen o window</translation>
    </message>
    <message>
        <source>Leave the pointer out of the recording</source>
        <extracomment>cli</extracomment>
        <translation>Dejar el puntero fuera de la grabación</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <extracomment>cli</extracomment>
        <translation>Empezar de inmediato</translation>
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
        <translation>DESCRIPCIÓN
  Ejecuta los pasos de una demo con el ratón y el teclado reales, tras una
  cuenta atrás de 2,4 segundos. Esc la detiene, tenga quien tenga el teclado;
  también Ctrl-C y SIGTERM. Nada queda pulsado.

  STEP es el identificador o el número de un paso, como los muestra
  «velvane inspect». El puntero empieza entonces donde la demo lo habría
  dejado.

  El resultado va a la salida estándar y, debajo, la ruta de la película de una
  ejecución grabada. Las películas van a Movies/Velvane en la carpeta personal.
  Con «window» se graba lo que cubre la ventana de la única aplicación de la
  demo; si no la hay, o si la demo cambia entre varias, toda la pantalla. El
  estado es 0 si la demo llegó a su fin y 1 si se detuvo o no pudo empezar.

EJEMPLO
  velvane run tour.velvane --from 4 --hide-others</translation>
    </message>
    <message>
        <source>Display server</source>
        <extracomment>cli</extracomment>
        <translation>Servidor gráfico</translation>
    </message>
    <message>
        <source>X11 (%1), which does not answer</source>
        <extracomment>cli</extracomment>
        <translation>X11 (%1), que no responde</translation>
    </message>
    <message>
        <source>Start this in the desktop session, where DISPLAY and XAUTHORITY are right.</source>
        <extracomment>cli</extracomment>
        <translation>Inicie esto en la sesión de escritorio, donde DISPLAY y XAUTHORITY son correctos.</translation>
    </message>
    <message>
        <source>Rendering needs none; the editor does: start it in a desktop session.</source>
        <extracomment>cli</extracomment>
        <translation>La conversión no lo necesita; el editor sí: inícielo en una sesión de escritorio.</translation>
    </message>
    <message>
        <source>works</source>
        <extracomment>cli</extracomment>
        <translation>funciona</translation>
    </message>
    <message>
        <source>not here</source>
        <extracomment>cli</extracomment>
        <translation>aquí no</translation>
    </message>
    <message>
        <source>Caption font</source>
        <extracomment>cli</extracomment>
        <translation>Letra de rótulos</translation>
    </message>
    <message>
        <source>%1, semibold</source>
        <extracomment>cli</extracomment>
        <translation>%1, seminegrita</translation>
    </message>
    <message>
        <source>Inter is missing, another sans-serif stands in</source>
        <extracomment>cli</extracomment>
        <translation>Falta Inter; la sustituye otra sin serifa</translation>
    </message>
    <message>
        <source>Install %1.</source>
        <extracomment>cli</extracomment>
        <translation>Instale %1.</translation>
    </message>
    <message>
        <source>no font has all of %1</source>
        <extracomment>cli</extracomment>
        <translation>ninguna letra tiene todos: %1</translation>
    </message>
    <message>
        <source>Backdrop pictures</source>
        <extracomment>cli</extracomment>
        <translation>Imágenes de fondo</translation>
    </message>
    <message>
        <source>Session</source>
        <extracomment>cli</extracomment>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Log in with an X11 session: in a Wayland session demos can be composed and rendered, not run or recorded.</source>
        <extracomment>cli</extracomment>
        <translation>Inicie una sesión de X11: en una de Wayland se pueden componer y convertir demos, no ejecutarlas ni grabarlas.</translation>
    </message>
    <message>
        <source>not told</source>
        <extracomment>cli</extracomment>
        <translation>no indicada</translation>
    </message>
    <message>
        <source>Recordings</source>
        <extracomment>cli</extracomment>
        <translation>Grabaciones</translation>
    </message>
    <message>
        <source>%1, %2 free</source>
        <extracomment>cli</extracomment>
        <translation>%1, %2 libres</translation>
    </message>
    <message>
        <source>Make room there: a recording ends when the disk is full.</source>
        <extracomment>cli</extracomment>
        <translation>Haga sitio allí: una grabación termina cuando el disco está lleno.</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <extracomment>cli</extracomment>
        <translation>no se puede escribir en %1</translation>
    </message>
    <message>
        <source>Make %1 a folder that you may write to.</source>
        <extracomment>cli</extracomment>
        <translation>Haga de %1 una carpeta en la que pueda escribir.</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>cli</extracomment>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Set LANG to a UTF-8 locale, such as C.UTF-8, so that file names and texts are read as they are written.</source>
        <extracomment>cli</extracomment>
        <translation>Ponga LANG en una configuración UTF-8, como C.UTF-8, para que nombres de archivo y textos se lean como están escritos.</translation>
    </message>
    <message>
        <source>Input posting</source>
        <extracomment>cli</extracomment>
        <translation>Enviar entradas</translation>
    </message>
    <message>
        <source>Input listening</source>
        <extracomment>cli</extracomment>
        <translation>Escuchar entradas</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <extracomment>cli</extracomment>
        <translation>Captura pantalla</translation>
    </message>
    <message>
        <source>H.264 encoder</source>
        <extracomment>cli</extracomment>
        <translation>Codificador H.264</translation>
    </message>
    <message>
        <source>Movie files</source>
        <extracomment>cli</extracomment>
        <translation>Archivos película</translation>
    </message>
    <message>
        <source>Shortcut glyphs</source>
        <extracomment>cli</extracomment>
        <translation>Signos de teclas</translation>
    </message>
    <message>
        <source>Emoji</source>
        <extracomment>cli</extracomment>
        <translation>Emojis</translation>
    </message>
    <message>
        <source>Show what a demo shows at given moments</source>
        <extracomment>cli</extracomment>
        <translation>Mostrar el estado de una demo en instantes dados</translation>
    </message>
    <message>
        <source>A moment in seconds; may be given several times</source>
        <extracomment>cli</extracomment>
        <translation>Un instante en segundos; se puede repetir</translation>
    </message>
    <message>
        <source>Length in seconds of the movie recorded with the steps; gives videoTime</source>
        <extracomment>cli</extracomment>
        <translation>Duración en segundos de la película grabada con los pasos; da videoTime</translation>
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
        <translation>DESCRIPCIÓN
  Escribe el estado de una demo en instantes dados, como una lista JSON con un
  objeto por instante: time, cursor [x, y], ripple o null, press, held, caption
  o null, videoTime o null. Los instantes fuera de la demo muestran el primero
  o el último.

EJEMPLO
  velvane state tour.velvane --at 0 --at 2.5</translation>
    </message>
</context>
</TS>
