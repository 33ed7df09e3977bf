<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>TVX::CORE::BasicMainWindow</name>
    <message>
        <location filename="../libs/core/src/mainwindow/basicmainwindow.cpp" line="+285"/>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lens</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Point Information</source>
        <translation>Punktinformation</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Report</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pick 3D Coordinates</source>
        <translation>3D-Koordinaten picken</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear Point List</source>
        <translation>Punktliste leeren</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear Picked Points from View</source>
        <translation>Gepickte Punkte aus der Ansicht entfernen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Edit Elements</source>
        <translation>Elemente bearbeiten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom All</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cascade Windows</source>
        <translation>Fenster überlappend</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cascade all Mdi Windows</source>
        <translation>Alle MDI-Fenster überlappend anordnen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tile Windows</source>
        <translation>Fenster nebeneinander</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tile all Mdi Windows</source>
        <translation>Alle MDI-Fenster nebeneinander anordnen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close All Windows</source>
        <translation>Alle Fenster schließen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Close all Mdi Windows</source>
        <translation>Alle MDI-Fenster schließen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Add Polygon</source>
        <translation>Polygon hinzufügen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Add Rectangle</source>
        <translation>Rechteck hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add Ellipse</source>
        <translation>Ellipse hinzufügen</translation>
    </message>
    <message>
        <location line="-232"/>
        <location line="+233"/>
        <source>Add Text</source>
        <translation>Text hinzufügen</translation>
    </message>
    <message>
        <location line="-233"/>
        <source>Text:</source>
        <translation>Text:</translation>
    </message>
    <message>
        <location line="+244"/>
        <source>3D Distance</source>
        <translation>3D-Abstand</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance in XY</source>
        <translation>Abstand in XY</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delta Z</source>
        <translation>Delta Z</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Detailed Distance Information</source>
        <translation>Ausführliche Abstandsinformation</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Undo Clear Point List</source>
        <translation>Leeren der Punktliste rückgängig machen</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>File Operations</source>
        <translation>Dateioperationen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom Operations</source>
        <translation>Zoomoperationen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Drawing Tools</source>
        <translation>Zeichenwerkzeuge</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Measurement Tools</source>
        <translation>Messwerkzeuge</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Point-based Operations</source>
        <translation>Punktbasierte Operationen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Recently Opened Files</source>
        <translation>Zuletzt geöffnete Dateien</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Toolbars</source>
        <translation>Werkzeugleisten</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Windows</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <location line="+71"/>
        <location line="+125"/>
        <location line="+432"/>
        <source>Read-only project</source>
        <translation>Schreibgeschütztes Projekt</translation>
    </message>
    <message>
        <location line="-556"/>
        <location line="+125"/>
        <location line="+432"/>
        <source>Changes could not be saved, because the project was opened in read-only mode.</source>
        <translation>Die Änderungen konnten nicht gespeichert werden, da das Projekt schreibgeschützt geöffnet wurde.</translation>
    </message>
    <message>
        <location line="-553"/>
        <source>Save Changes?</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Changes where made to one or more views. Should they be stored permanently?</source>
        <translation>In einer oder mehreren Ansichten wurden Änderungen vorgenommen. Sollen sie dauerhaft gespeichert werden?</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+111"/>
        <source>File IO Error</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <location line="-111"/>
        <source>An error occurred during saving the changes permanently. Try again?</source>
        <translation>Beim dauerhaften Speichern der Änderungen ist ein Fehler aufgetreten. Erneut versuchen?</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Select Project File</source>
        <translation>Projektdatei auswählen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tarvenix Project File (*.tvxprj)</source>
        <translation>Tarvenix-Projektdatei (*.tvxprj)</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+43"/>
        <location line="+6"/>
        <source>Could Not Open Project Directory</source>
        <translation>Projektverzeichnis konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <location line="-48"/>
        <source>The project directory %1 does not exist.</source>
        <translation>Das Projektverzeichnis %1 existiert nicht.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Warning: Old Project File Version</source>
        <translation>Warnung: Alte Version der Projektdatei</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Project %1 opened%2.</source>
        <translation>Projekt %1 geöffnet%2.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> read-only</source>
        <translation> (schreibgeschützt)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Scan not readable: %1</source>
        <translation>Scan nicht lesbar: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Scans Could Not Be Read</source>
        <translation>Scans konnten nicht gelesen werden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The following scans of the project could not be read and are not shown:

%1</source>
        <translation>Die folgenden Scans des Projekts konnten nicht gelesen werden und werden nicht angezeigt:

%1</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The lock file %1 could not be deleted.</source>
        <translation>Die Sperrdatei %1 konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Lock file %1 deleted by the user.</source>
        <translation>Sperrdatei %1 vom Benutzer gelöscht.</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Project %1 saved.</source>
        <translation>Projekt %1 gespeichert.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Could Not Close Project</source>
        <translation>Projekt konnte nicht geschlossen werden</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Tarvenix Viewer</source>
        <translation>Tarvenix Viewer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tarvenix Viewer: %1[*]</source>
        <translation>Tarvenix Viewer: %1[*]</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+21"/>
        <location line="+8"/>
        <source>Add Scans</source>
        <translation>Scans hinzufügen</translation>
    </message>
    <message>
        <location line="-28"/>
        <source>Scans (*.tvx %1);;Scan Files (*.tvx);;Scans of Other Scanners (%1)</source>
        <translation>Scans (*.tvx %1);;Scandateien (*.tvx);;Scans anderer Scanner (%1)</translation>
    </message>
    <message>
        <location line="+231"/>
        <source>The scan %1 cannot be read.</source>
        <translation>Der Scan %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Spherical View: </source>
        <translation>Sphärische Ansicht: </translation>
    </message>
    <message>
        <location line="+43"/>
        <source>The points of scan %1 cannot be read: %2</source>
        <translation>Die Punkte des Scans %1 können nicht gelesen werden: %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Pointcloud View: </source>
        <translation>Punktwolkenansicht: </translation>
    </message>
    <message>
        <location line="-271"/>
        <source>Scan %1 added.</source>
        <translation>Scan %1 hinzugefügt.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>These scans could not be added:

%1</source>
        <translation>Diese Scans konnten nicht hinzugefügt werden:

%1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Importing %1 ...</source>
        <translation>%1 wird importiert ...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Import of %1 cancelled; nothing was added.</source>
        <translation>Import von %1 abgebrochen; nichts wurde hinzugefügt.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Scans imported from %1 into the folder %2: %3.</source>
        <translation>Aus %1 in den Ordner %2 importierte Scans: %3.</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>Open Planar View</source>
        <translation>Planare Ansicht öffnen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Spherical View</source>
        <translation>Sphärische Ansicht öffnen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Pointcloud View</source>
        <translation>Punktwolkenansicht öffnen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close Views of this Scan</source>
        <translation>Ansichten dieses Scans schließen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close Views of all other Scans</source>
        <translation>Ansichten aller anderen Scans schließen</translation>
    </message>
    <message>
        <location line="+39"/>
        <location line="+58"/>
        <source>The panorama %1 cannot be read.</source>
        <translation>Das Panorama %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="-57"/>
        <location line="+59"/>
        <location line="+51"/>
        <source>Open a new View Failed</source>
        <translation>Öffnen einer neuen Ansicht fehlgeschlagen</translation>
    </message>
    <message>
        <location line="-109"/>
        <location line="+59"/>
        <location line="+51"/>
        <source>Tarvenix was unable to open a new scan view. Please close some other views and try again.</source>
        <translation>Tarvenix konnte keine neue Scanansicht öffnen. Bitte schließen Sie einige andere Ansichten und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <location line="-105"/>
        <source>Planar View: </source>
        <translation>Planare Ansicht: </translation>
    </message>
    <message>
        <location line="+182"/>
        <source>Error reading file</source>
        <translation>Fehler beim Lesen der Datei</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Parse error in file %1:

%2</source>
        <translation>Syntaxfehler in Datei %1:

%2</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Internal Error</source>
        <translation>Interner Fehler</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No scene information for scan found.</source>
        <translation>Keine Szeneninformation für den Scan gefunden.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Annotations saved to %1.</source>
        <translation>Annotationen in %1 gespeichert.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Annotations not saved to %1: %2</source>
        <translation>Annotationen nicht in %1 gespeichert: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>   %1
</source>
        <translation>   %1
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Error writing files</source>
        <translation>Fehler beim Schreiben von Dateien</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Could not write the following files:
</source>
        <translation>Die folgenden Dateien konnten nicht geschrieben werden:
</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>Area selected in %1: columns %2 to %3, rows %4 to %5.</source>
        <translation>Bereich in %1 ausgewählt: Spalten %2 bis %3, Zeilen %4 bis %5.</translation>
    </message>
    <message>
        <location line="+121"/>
        <source>No point at column %1, row %2 of scan %3.</source>
        <translation>Kein Punkt in Spalte %1, Zeile %2 von Scan %3.</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Missing Information</source>
        <translation>Fehlende Information</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>You need to specify two points in the same or in different scans before.</source>
        <translation>Sie müssen zuvor zwei Punkte im selben oder in verschiedenen Scans angeben.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>DX: %1 m</source>
        <translation>DX: %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DY: %1 m</source>
        <translation>DY: %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DZ: %1 m</source>
        <translation>DZ: %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance 3D: %1 m</source>
        <translation>Abstand 3D: %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance XY: %1 m</source>
        <translation>Abstand XY: %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance Information</source>
        <translation>Abstandsinformation</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>c: %1,  r: %2</source>
        <comment>abbreviation for column and row</comment>
        <translation>S: %1,  Z: %2</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>c: %1, r: %2,   x: %3, y: %4, z: %5, dist: %6</source>
        <translation>S: %1, Z: %2,   x: %3, y: %4, z: %5, Dist.: %6</translation>
    </message>
    <message>
        <location filename="../libs/core/src/mainwindow/planarviewcontent.cpp" line="+53"/>
        <source>distance: %1 m</source>
        <translation>Abstand: %1 m</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::BasicProject</name>
    <message>
        <location filename="../libs/core/src/project/basicproject.cpp" line="+296"/>
        <source>the file cannot be opened</source>
        <translation>die Datei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>the header cannot be read</source>
        <translation>der Dateikopf kann nicht gelesen werden</translation>
    </message>
    <message>
        <location line="+252"/>
        <source>the project is open read-only</source>
        <translation>das Projekt ist schreibgeschützt geöffnet</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the unreadable annotation file cannot be kept as %1</source>
        <translation>die nicht lesbare Annotationsdatei kann nicht als %1 aufbewahrt werden</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>no project is open</source>
        <translation>kein Projekt geöffnet</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::DeleteLockFileDialog</name>
    <message>
        <location filename="../libs/core/src/mainwindow/deletelockfiledialog.cpp" line="+13"/>
        <source>Could Not Open Project Directory</source>
        <translation>Projektverzeichnis konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <source>Delete Lock File</source>
        <translation>Sperrdatei löschen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delete the lock file only when nobody else is working on this project. Changes of two people working on it at the same time would be lost.

Delete the lock file?</source>
        <translation>Löschen Sie die Sperrdatei nur, wenn niemand sonst an diesem Projekt arbeitet. Änderungen von zwei Personen, die gleichzeitig daran arbeiten, gingen verloren.

Sperrdatei löschen?</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57PagedFile</name>
    <message>
        <location filename="../libs/core/src/fileio/e57pagedfile.cpp" line="+24"/>
        <source>page size %1 is not between %2 and %3</source>
        <translation>Seitengröße %1 liegt nicht zwischen %2 und %3</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>page %1 lies past the end of the file (%2 pages)</source>
        <translation>Seite %1 liegt hinter dem Dateiende (%2 Seiten)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>cannot read page %1: %2</source>
        <translation>Seite %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>page %1: the checksum does not match</source>
        <translation>Seite %1: die Prüfsumme stimmt nicht</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57Reader</name>
    <message>
        <location filename="../libs/core/src/fileio/e57reader.cpp" line="+111"/>
        <source>the image blob at byte %1 is not one</source>
        <translation>der Bildblock bei Byte %1 ist keiner</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the compressed vector at byte %1 lies past the end of the file</source>
        <translation>der komprimierte Vektor bei Byte %1 liegt hinter dem Dateiende</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>byte %1 holds no compressed vector section</source>
        <translation>Byte %1 enthält keinen Abschnitt eines komprimierten Vektors</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the compressed vector at byte %1 claims %2 bytes, more than the file holds</source>
        <translation>der komprimierte Vektor bei Byte %1 gibt %2 Bytes an, mehr als die Datei enthält</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>the data of the compressed vector at byte %1 lie outside its section</source>
        <translation>die Daten des komprimierten Vektors bei Byte %1 liegen außerhalb seines Abschnitts</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>the packet at byte %1 runs past the end of its section</source>
        <translation>das Paket bei Byte %1 reicht über das Ende seines Abschnitts hinaus</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>byte %1 holds no packet</source>
        <translation>Byte %1 enthält kein Paket</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the packet at byte %1 holds %2 bytestreams for %3 fields</source>
        <translation>das Paket bei Byte %1 enthält %2 Byteströme für %3 Felder</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the packet at byte %1 is shorter than its header</source>
        <translation>das Paket bei Byte %1 ist kürzer als sein Kopf</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the bytestreams of the packet at byte %1 run past its end</source>
        <translation>die Byteströme des Pakets bei Byte %1 reichen über sein Ende hinaus</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the field %1 runs ahead of the others by more than %2 bytes</source>
        <translation>das Feld %1 läuft den anderen um mehr als %2 Bytes voraus</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>the compressed vector ends after %1 of %2 records</source>
        <translation>der komprimierte Vektor endet nach %1 von %2 Datensätzen</translation>
    </message>
    <message>
        <location line="+71"/>
        <source>record %1: the coordinates are not finite</source>
        <translation>Datensatz %1: die Koordinaten sind nicht endlich</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>&quot;%1&quot; is no number</source>
        <translation>&quot;%1&quot; ist keine Zahl</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>&quot;%1&quot; is no integer</source>
        <translation>&quot;%1&quot; ist keine ganze Zahl</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>%1 &quot;%2&quot; lies outside the file&apos;s data</source>
        <translation>%1 &quot;%2&quot; liegt außerhalb der Daten der Datei</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>the quaternion has no length</source>
        <translation>das Quaternion hat keine Länge</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>%1 &quot;%2&quot; is no number</source>
        <translation>%1 &quot;%2&quot; ist keine Zahl</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>minimum %1 lies above maximum %2</source>
        <translation>Minimum %1 liegt über dem Maximum %2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>a point field of type &quot;%1&quot;</source>
        <translation>ein Punktfeld vom Typ &quot;%1&quot;</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Scan %1</source>
        <translation>Scan %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>no compressed vector of points</source>
        <translation>kein komprimierter Vektor von Punkten</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>no record count</source>
        <translation>keine Anzahl der Datensätze</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>only the bit-pack codec is supported</source>
        <translation>nur der Bit-Pack-Codec wird unterstützt</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>no prototype</source>
        <translation>kein Prototyp</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the field %1 comes twice</source>
        <translation>das Feld %1 kommt zweimal vor</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>the points have neither cartesian nor spherical coordinates</source>
        <translation>die Punkte haben weder kartesische noch sphärische Koordinaten</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>a row index without a column index, or the other way round</source>
        <translation>ein Zeilenindex ohne Spaltenindex oder umgekehrt</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>%1 %2 makes no grid</source>
        <translation>%1 %2 ergibt kein Raster</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>a grid of %1 × %2 is too large</source>
        <translation>ein Raster von %1 × %2 ist zu groß</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>an image of %1 bytes</source>
        <translation>ein Bild von %1 Bytes</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>too short for an E57 file</source>
        <translation>zu kurz für eine E57-Datei</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not an E57 file</source>
        <translation>keine E57-Datei</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>E57 version %1 is not supported</source>
        <translation>E57-Version %1 wird nicht unterstützt</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the file is %1 bytes long, its header says %2</source>
        <translation>die Datei ist %1 Bytes lang, ihr Kopf sagt %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the XML section (%1 bytes at byte %2) does not fit the file</source>
        <translation>der XML-Abschnitt (%1 Bytes ab Byte %2) passt nicht in die Datei</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>XML section, %1</source>
        <translation>XML-Abschnitt, %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>no scan in the file</source>
        <translation>kein Scan in der Datei</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57XmlNode</name>
    <message>
        <location filename="../libs/core/src/fileio/e57xmlnode.cpp" line="+19"/>
        <source>line %1: the XML is too large or too deep</source>
        <translation>Zeile %1: das XML ist zu groß oder zu tief verschachtelt</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeModel</name>
    <message>
        <location filename="../libs/core/src/project/filetreemodel.cpp" line="+246"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Planar View</source>
        <translation>Planare Ansicht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Spherical View</source>
        <translation>Sphärische Ansicht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pointcloud View</source>
        <translation>Punktwolkenansicht</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeView</name>
    <message>
        <location filename="../libs/core/src/mainwindow/filetreeview.cpp" line="+85"/>
        <location line="+62"/>
        <source>Delete Items</source>
        <translation>Elemente löschen</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Add Scans</source>
        <translation>Scans hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rename Folder</source>
        <translation>Ordner umbenennen</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Expand Folder</source>
        <translation>Ordner aufklappen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Collapse Folder</source>
        <translation>Ordner zuklappen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Planar View</source>
        <translation>Planare Ansicht öffnen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Spherical View</source>
        <translation>Sphärische Ansicht öffnen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Pointcloud View</source>
        <translation>Punktwolkenansicht öffnen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close Views of this Scan</source>
        <translation>Ansichten dieses Scans schließen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close Views of all other Scans</source>
        <translation>Ansichten aller anderen Scans schließen</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Delete the selected items from the project? The scan files stay on disk.</source>
        <translation>Die ausgewählten Elemente aus dem Projekt löschen? Die Scandateien bleiben auf dem Datenträger.</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::LogTableModel</name>
    <message>
        <location filename="../libs/core/src/mainwindow/logtablemodel.cpp" line="+46"/>
        <source>Type</source>
        <comment>Type of Log Message (Warning, Error, ...</comment>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::MDIPointcloudViewSubWindow</name>
    <message>
        <location filename="../libs/core/src/mainwindow/mdipointcloudviewsubwindow.cpp" line="+27"/>
        <source>Reset up-vector</source>
        <translation>Aufwärtsvektor zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Background Color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointInfoTableModel</name>
    <message>
        <location filename="../libs/core/src/mainwindow/pointinfotablemodel.cpp" line="+118"/>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refl.</source>
        <translation>Refl.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Filename</source>
        <translation>Dateiname</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointInfoTableView</name>
    <message>
        <location filename="../libs/core/src/mainwindow/pointinfotableview.cpp" line="+29"/>
        <source>Specify z-Coordinate</source>
        <translation>z-Koordinate festlegen</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>Save Entries to File</source>
        <translation>Einträge in Datei speichern</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset z-Coordinate to 0.0</source>
        <translation>z-Koordinate auf 0.0 zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set Value of z-Coordinate</source>
        <translation>Wert der z-Koordinate festlegen</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointcloudViewGLWidget</name>
    <message>
        <location filename="../libs/core/src/glviews/pointcloudviewglwidget.cpp" line="+303"/>
        <source>Background Color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Scan Colours</source>
        <translation>Scanfarben</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Dark Grey</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectImport</name>
    <message>
        <location filename="../libs/core/src/project/projectimport.cpp" line="+70"/>
        <source>%1: only PTX and E57 files can be imported</source>
        <translation>%1: nur PTX- und E57-Dateien können importiert werden</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>no project is open for writing</source>
        <translation>kein Projekt ist zum Schreiben geöffnet</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+89"/>
        <source>cannot create %1</source>
        <translation>%1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <location line="-56"/>
        <source>%1: not enough memory</source>
        <translation>%1: nicht genug Speicher</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>%1: the written scan cannot be read back: %2</source>
        <translation>%1: der geschriebene Scan kann nicht zurückgelesen werden: %2</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectMessages</name>
    <message>
        <location filename="../libs/core/src/project/projectmessages.cpp" line="+9"/>
        <source>A project is already open. Close it before opening another one.
</source>
        <translation>Es ist bereits ein Projekt geöffnet. Schließen Sie es, bevor Sie ein anderes öffnen.
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>A lock file was found indicating that this directory is in use by another person or application.

</source>
        <translation>Es wurde eine Sperrdatei gefunden. Dieses Verzeichnis wird von einer anderen Person oder Anwendung verwendet.

</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>  user: %1
</source>
        <translation>  Benutzer: %1
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>  directory: %1
</source>
        <translation>  Verzeichnis: %1
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>  lockfile: %1
</source>
        <translation>  Sperrdatei: %1
</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The lock file %1 could not be removed. The project stays open.
</source>
        <translation>Die Sperrdatei %1 konnte nicht entfernt werden. Das Projekt bleibt geöffnet.
</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>An error occured reading the project file %1.

</source>
        <translation>Beim Lesen der Projektdatei %1 ist ein Fehler aufgetreten.

</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>It was written with Tarvenix version: %1.%2.%3 using project format version: %4. </source>
        <translation>Sie wurde mit Tarvenix-Version %1.%2.%3 im Projektformat Version %4 geschrieben. </translation>
    </message>
    <message>
        <location line="+5"/>
        <source>If this version is newer than the currently used version, you need to upgrade your Tarvenix Software Suite.
</source>
        <translation>Wenn diese Version neuer als die verwendete ist, müssen Sie Ihre Tarvenix Software Suite aktualisieren.
</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The lock file %1 is no longer the one this application created; somebody else may have taken the project over. The project stays open.
</source>
        <translation>Die Sperrdatei %1 ist nicht mehr die von dieser Anwendung angelegte; möglicherweise hat jemand anderes das Projekt übernommen. Das Projekt bleibt geöffnet.
</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Warning: Project file with was written with an older Tarvenix version (%1.%2.%3) using project format version: %4. </source>
        <translation>Warnung: Die Projektdatei wurde mit einer älteren Tarvenix-Version (%1.%2.%3) im Projektformat Version %4 geschrieben. </translation>
    </message>
    <message>
        <location line="+6"/>
        <source>If you save this project again, it can be re-opened only with applications supporting the new project format.
</source>
        <translation>Wenn Sie dieses Projekt erneut speichern, kann es nur noch mit Anwendungen geöffnet werden, die das neue Projektformat unterstützen.
</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>
Cause: %1
</source>
        <translation>
Ursache: %1
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Changes could not be saved, because the project was opened in read-only mode.</source>
        <translation>Die Änderungen konnten nicht gespeichert werden, da das Projekt schreibgeschützt geöffnet wurde.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The project file %1 could not be written.
</source>
        <translation>Die Projektdatei %1 konnte nicht geschrieben werden.
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The project file %1 was missing; it was restored from the copy that the last save left behind.
</source>
        <translation>Die Projektdatei %1 fehlte; sie wurde aus der Kopie wiederhergestellt, die das letzte Speichern hinterlassen hat.
</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PtxReader</name>
    <message>
        <location filename="../libs/core/src/fileio/ptxreader.cpp" line="+37"/>
        <source>cannot seek to byte %1</source>
        <translation>Byte %1 kann nicht angesteuert werden</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>line longer than %1 bytes</source>
        <translation>Zeile länger als %1 Bytes</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>cannot read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <location line="+106"/>
        <source>the file ends inside a scan</source>
        <translation>die Datei endet mitten in einem Scan</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>expected %1 numbers</source>
        <translation>%1 Zahlen erwartet</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+32"/>
        <source>a number that is not finite</source>
        <translation>eine Zahl, die nicht endlich ist</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>the file ends inside a scan header</source>
        <translation>die Datei endet mitten im Kopf eines Scans</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>a header line of %1 numbers expected</source>
        <translation>eine Kopfzeile mit %1 Zahlen erwartet</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 %2 is not between 1 and %3</source>
        <translation>%1 %2 liegt nicht zwischen 1 und %3</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Scan %1</source>
        <translation>Scan %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>column count</source>
        <translation>Spaltenzahl</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>row count</source>
        <translation>Zeilenzahl</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 × %2 points are more than %3</source>
        <translation>%1 × %2 Punkte sind mehr als %3</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>the file ends at line %1, inside scan %2 of %3 × %4 points</source>
        <translation>die Datei endet in Zeile %1, mitten in Scan %2 mit %3 × %4 Punkten</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>expected 4 or 7 numbers</source>
        <translation>4 oder 7 Zahlen erwartet</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>no scan in the file</source>
        <translation>kein Scan in der Datei</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ReferencePointsTableModel</name>
    <message>
        <location filename="../libs/core/src/project/referencepointstablemodel.cpp" line="+42"/>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>X [m]</source>
        <translation>X [m]</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Y [m]</source>
        <translation>Y [m]</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Z [m]</source>
        <translation>Z [m]</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Radius [m]</source>
        <translation>Radius [m]</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ScanImporter</name>
    <message>
        <location filename="../libs/core/src/fileio/scanimporter.cpp" line="+117"/>
        <source>a point at column %1, row %2 lies outside the grid of %3 × %4</source>
        <translation>ein Punkt in Spalte %1, Zeile %2 liegt außerhalb des Rasters von %3 × %4</translation>
    </message>
    <message>
        <location line="+94"/>
        <source>a grid of %1 × %2 for only %3 points</source>
        <translation>ein Raster von %1 × %2 für nur %3 Punkte</translation>
    </message>
    <message>
        <location line="+111"/>
        <source>no point with a return to grid</source>
        <translation>kein Punkt mit Rückkehr zum Rastern</translation>
    </message>
    <message>
        <location line="+79"/>
        <source>a step of %1° makes more than %2 cells; choose a larger step</source>
        <translation>eine Schrittweite von %1° ergibt mehr als %2 Zellen; wählen Sie eine größere</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>the point of cell (%1, %2) is not finite</source>
        <translation>der Punkt der Zelle (%1, %2) ist nicht endlich</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the point of cell (%1, %2) lies %3 m away, beyond the %4 m that scan files store</source>
        <translation>der Punkt der Zelle (%1, %2) liegt %3 m entfernt, jenseits der %4 m, die Scandateien speichern</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>the grid of %1 × %2 is too large to be held whole; at most %3 cells</source>
        <translation>das Raster von %1 × %2 ist zu groß, um es ganz zu halten; höchstens %3 Zellen</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>the points of column %1 are not stored together</source>
        <translation>die Punkte der Spalte %1 sind nicht zusammen gespeichert</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>its panorama image cannot be decoded</source>
        <translation>sein Panoramabild kann nicht dekodiert werden</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>no memory for a panorama of %1 × %2 pixels</source>
        <translation>kein Speicher für ein Panorama von %1 × %2 Pixeln</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::SphericalViewGLWidget</name>
    <message>
        <location filename="../libs/core/src/glviews/sphericalviewglwidget.cpp" line="+220"/>
        <source>Error Initializing Display Driver</source>
        <translation>Fehler beim Initialisieren des Grafiktreibers</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenGL driver could not be initialized without errors.</source>
        <translation>Der OpenGL-Treiber konnte nicht fehlerfrei initialisiert werden.</translation>
    </message>
    <message>
        <location line="+232"/>
        <source>%1
distance: %2 m</source>
        <translation>%1
Abstand: %2 m</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ViewerSceneReader</name>
    <message>
        <location filename="../libs/core/src/annotations/viewerscenereader.cpp" line="+29"/>
        <source>The file is not an Tarvenix viewer version 1.0 or 2.0 file.</source>
        <translation>Die Datei ist keine Tarvenix-Viewer-Datei der Version 1.0 oder 2.0.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Invalid number of entities</source>
        <translation>Ungültige Anzahl von Einträgen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unknown dimensioning type</source>
        <translation>Unbekannter Bemaßungstyp</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Entity declarations are not supported</source>
        <translation>Entitätsdeklarationen werden nicht unterstützt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Elements are nested too deeply</source>
        <translation>Die Elemente sind zu tief verschachtelt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1
Line %2, column %3</source>
        <translation>%1
Zeile %2, Spalte %3</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::PreferencesWidget</name>
    <message>
        <location filename="../app/preferenceswidget.cpp" line="+67"/>
        <source>Edit Preferences</source>
        <translation>Einstellungen bearbeiten</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Reset:</source>
        <translation>Zurücksetzen:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset Application Settings to Defaults</source>
        <translation>Anwendungseinstellungen auf Standardwerte zurücksetzen</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Language Selection:</source>
        <translation>Sprachauswahl:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use System Default</source>
        <translation>Systemstandard verwenden</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Use Other than System Default</source>
        <translation>Anderen als den Systemstandard verwenden</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Italian</source>
        <translation>Italienisch</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Application Parameter:</source>
        <translation>Anwendungsparameter:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show Station Marks</source>
        <translation>Standpunktmarken anzeigen</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Same as Active Window</source>
        <translation>Wie aktives Fenster</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Planar View</source>
        <translation>Planare Ansicht</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Spherical View</source>
        <translation>Sphärische Ansicht</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PointCloud View</source>
        <translation>Punktwolkenansicht</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>minimal Distance:</source>
        <translation>minimaler Abstand:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>maximal Distance:</source>
        <translation>maximaler Abstand:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>View to be opened by default:</source>
        <translation>Standardmäßig zu öffnende Ansicht:</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Reset Application Settings</source>
        <translation>Anwendungseinstellungen zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All application settings are reset to their defaults. Please restart all Tarvnix applications before you continue.</source>
        <translation>Alle Anwendungseinstellungen wurden auf ihre Standardwerte zurückgesetzt. Bitte starten Sie alle Tarvnix-Anwendungen neu, bevor Sie fortfahren.</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::ShowProjectCoordSysDialog</name>
    <message>
        <location filename="../app/showprojectcoordsysdialog.cpp" line="+53"/>
        <source>The project file holds no valid number here.</source>
        <translation>Die Projektdatei enthält hier keine gültige Zahl.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Project Coordinate Systems</source>
        <translation>Projektkoordinatensysteme</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Translation</source>
        <translation>Translation</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1 (m):</source>
        <translation>%1 (m):</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Coordinate system:</source>
        <translation>Koordinatensystem:</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::StartupHelpWidget</name>
    <message>
        <location filename="../app/startuphelpwidget.cpp" line="+20"/>
        <source>Quick Introduction</source>
        <translation>Kurzeinführung</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Show this help on startup</source>
        <translation>Diese Hilfe beim Start anzeigen</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>&lt;h2&gt;Welcome to the Scan Viewer&lt;/h2&gt;&lt;p&gt;The viewer shows projects of terrestrial laser scans: you look at the scans, pick 3D coordinates, measure distances and draw annotations.&lt;/p&gt;&lt;h3&gt;Projects&lt;/h3&gt;&lt;p&gt;A project is a folder that holds a project file and a folder named &lt;i&gt;scans&lt;/i&gt; with the scan files and their panorama images. Open it with &lt;b&gt;File &amp;gt; Open Project&lt;/b&gt;; the last ten projects are listed under &lt;b&gt;File &amp;gt; Recently Opened Files&lt;/b&gt;. While you work on a project, others can only open it read-only.&lt;/p&gt;&lt;h3&gt;The project tree&lt;/h3&gt;&lt;p&gt;The &lt;b&gt;Project&lt;/b&gt; dock lists the scans in their folders. Double click a scan to open it in the default view. The context menu (right mouse button) opens the planar, spherical or point cloud view of the selected scans, closes their views, and adds scans and folders, renames folders or deletes items. Drag items to arrange them in folders; the check box of a scan switches it off and closes its views.&lt;/p&gt;&lt;h3&gt;The three views&lt;/h3&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Planar view&lt;/b&gt;: the panorama image of the scan, one pixel per measured cell.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Spherical view&lt;/b&gt;: the panorama around the scanner&apos;s position, as if you stood there; drag to look around.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Point cloud view&lt;/b&gt;: the measured points in 3D; drag to turn the cloud.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Any number of views can be open at once; &lt;b&gt;Windows&lt;/b&gt; arranges or closes them. The zoom tools and &lt;b&gt;Zoom All&lt;/b&gt; change the magnification; hold the middle mouse button, or Ctrl and the left button, to pan.&lt;/p&gt;&lt;h3&gt;Picking coordinates&lt;/h3&gt;&lt;p&gt;With &lt;b&gt;Pick 3D Coordinates&lt;/b&gt; on, click into a view: the point&apos;s column, row, coordinates, reflectance and distance are added to the &lt;b&gt;Point Information&lt;/b&gt; dock. &lt;b&gt;Clear Point List&lt;/b&gt; empties the list; &lt;b&gt;Clear Picked Points from View&lt;/b&gt; removes the marks.&lt;/p&gt;&lt;h3&gt;Measuring&lt;/h3&gt;&lt;p&gt;The measuring tools &lt;b&gt;3D Distance&lt;/b&gt;, &lt;b&gt;Distance in XY&lt;/b&gt; and &lt;b&gt;Delta Z&lt;/b&gt; place a dimensioning between two points you click. &lt;b&gt;Detailed Distance Information&lt;/b&gt; shows all three distances between the last two picked points.&lt;/p&gt;&lt;h3&gt;Annotations&lt;/h3&gt;&lt;p&gt;Draw polygons, rectangles, ellipses and texts with the drawing tools; a polygon is closed with a double click. &lt;b&gt;Edit Elements&lt;/b&gt; lets you move and reshape them. Annotations are kept per scan and saved with the project by &lt;b&gt;File &amp;gt; Save Project&lt;/b&gt;.&lt;/p&gt;&lt;h3&gt;The lens&lt;/h3&gt;&lt;p&gt;Hold Shift while you move the mouse over a planar view: the &lt;b&gt;Lens&lt;/b&gt; dock magnifies the cells around the cursor and shows the coordinates of the cell in its centre.&lt;/p&gt;&lt;h3&gt;Station marks&lt;/h3&gt;&lt;p&gt;The positions of the other scans nearby are shown as station marks. Double click one to open that scan.&lt;/p&gt;&lt;h3&gt;Preferences&lt;/h3&gt;&lt;p&gt;&lt;b&gt;Preferences...&lt;/b&gt; in the help menu sets the language, whether station marks are shown and within which distances, and which view a double click in the project tree opens. &lt;b&gt;Project Coordinates...&lt;/b&gt; shows the coordinate systems of the project.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Willkommen im Scan Viewer&lt;/h2&gt;&lt;p&gt;Der Viewer zeigt Projekte terrestrischer Laserscans: Sie betrachten die Scans, picken 3D-Koordinaten, messen Abstände und zeichnen Annotationen.&lt;/p&gt;&lt;h3&gt;Projekte&lt;/h3&gt;&lt;p&gt;Ein Projekt ist ein Ordner mit einer Projektdatei und einem Ordner namens &lt;i&gt;scans&lt;/i&gt;, der die Scandateien und ihre Panoramabilder enthält. Öffnen Sie es mit &lt;b&gt;Datei &amp;gt; Projekt öffnen&lt;/b&gt;; die letzten zehn Projekte stehen unter &lt;b&gt;Datei &amp;gt; Zuletzt geöffnete Dateien&lt;/b&gt;. Während Sie an einem Projekt arbeiten, können andere es nur schreibgeschützt öffnen.&lt;/p&gt;&lt;h3&gt;Der Projektbaum&lt;/h3&gt;&lt;p&gt;Das Dock &lt;b&gt;Projekt&lt;/b&gt; listet die Scans in ihren Ordnern. Ein Doppelklick auf einen Scan öffnet ihn in der Standardansicht. Das Kontextmenü (rechte Maustaste) öffnet die planare, sphärische oder Punktwolkenansicht der ausgewählten Scans, schließt ihre Ansichten, fügt Scans und Ordner hinzu, benennt Ordner um oder löscht Elemente. Ziehen Sie Elemente, um sie in Ordnern anzuordnen; das Kontrollkästchen eines Scans schaltet ihn aus und schließt seine Ansichten.&lt;/p&gt;&lt;h3&gt;Die drei Ansichten&lt;/h3&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Planare Ansicht&lt;/b&gt;: das Panoramabild des Scans, ein Pixel pro gemessener Zelle.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Sphärische Ansicht&lt;/b&gt;: das Panorama rund um den Standpunkt des Scanners, als stünden Sie dort; ziehen Sie, um sich umzusehen.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Punktwolkenansicht&lt;/b&gt;: die gemessenen Punkte in 3D; ziehen Sie, um die Wolke zu drehen.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Beliebig viele Ansichten können gleichzeitig offen sein; &lt;b&gt;Fenster&lt;/b&gt; ordnet sie an oder schließt sie. Die Zoomwerkzeuge und &lt;b&gt;Alles zeigen&lt;/b&gt; ändern die Vergrößerung; halten Sie die mittlere Maustaste oder Strg und die linke Maustaste, um zu verschieben.&lt;/p&gt;&lt;h3&gt;Koordinaten picken&lt;/h3&gt;&lt;p&gt;Ist &lt;b&gt;3D-Koordinaten picken&lt;/b&gt; aktiv, klicken Sie in eine Ansicht: Spalte, Zeile, Koordinaten, Reflektivität und Abstand des Punkts werden dem Dock &lt;b&gt;Punktinformation&lt;/b&gt; hinzugefügt. &lt;b&gt;Punktliste leeren&lt;/b&gt; leert die Liste; &lt;b&gt;Gepickte Punkte aus der Ansicht entfernen&lt;/b&gt; entfernt die Markierungen.&lt;/p&gt;&lt;h3&gt;Messen&lt;/h3&gt;&lt;p&gt;Die Messwerkzeuge &lt;b&gt;3D-Abstand&lt;/b&gt;, &lt;b&gt;Abstand in XY&lt;/b&gt; und &lt;b&gt;Delta Z&lt;/b&gt; setzen eine Bemaßung zwischen zwei angeklickte Punkte. &lt;b&gt;Ausführliche Abstandsinformation&lt;/b&gt; zeigt alle drei Abstände zwischen den beiden zuletzt gepickten Punkten.&lt;/p&gt;&lt;h3&gt;Annotationen&lt;/h3&gt;&lt;p&gt;Zeichnen Sie Polygone, Rechtecke, Ellipsen und Texte mit den Zeichenwerkzeugen; ein Polygon wird mit einem Doppelklick geschlossen. &lt;b&gt;Elemente bearbeiten&lt;/b&gt; erlaubt es, sie zu verschieben und umzuformen. Annotationen werden pro Scan geführt und mit dem Projekt über &lt;b&gt;Datei &amp;gt; Projekt speichern&lt;/b&gt; gespeichert.&lt;/p&gt;&lt;h3&gt;Die Lupe&lt;/h3&gt;&lt;p&gt;Halten Sie die Umschalttaste gedrückt, während Sie die Maus über eine planare Ansicht bewegen: das Dock &lt;b&gt;Lupe&lt;/b&gt; vergrößert die Zellen um den Mauszeiger und zeigt die Koordinaten der mittleren Zelle.&lt;/p&gt;&lt;h3&gt;Standpunktmarken&lt;/h3&gt;&lt;p&gt;Die Standpunkte der anderen Scans in der Nähe werden als Standpunktmarken angezeigt. Ein Doppelklick auf eine Marke öffnet diesen Scan.&lt;/p&gt;&lt;h3&gt;Einstellungen&lt;/h3&gt;&lt;p&gt;&lt;b&gt;Einstellungen...&lt;/b&gt; im Hilfemenü legt die Sprache fest, ob und in welchen Abständen Standpunktmarken angezeigt werden und welche Ansicht ein Doppelklick im Projektbaum öffnet. &lt;b&gt;Projektkoordinaten...&lt;/b&gt; zeigt die Koordinatensysteme des Projekts.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::ViewerMainWindow</name>
    <message>
        <location filename="../app/viewermainwindow.cpp" line="+34"/>
        <source>Preferences...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Project Coordinates...</source>
        <translation>Projektkoordinaten...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show Quick Introduction</source>
        <translation>Kurzeinführung anzeigen</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+63"/>
        <source>About Tarvenix Scan Viewer</source>
        <translation>Über Tarvenix Scan Viewer</translation>
    </message>
    <message>
        <location line="-62"/>
        <location line="+74"/>
        <source>More About Tarvenix</source>
        <translation>Mehr über Tarvenix</translation>
    </message>
    <message>
        <location line="-72"/>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>&lt;h3&gt;Tarvenix Scan Viewer&lt;/h3&gt;&lt;p&gt;Version %1.%2.%3&lt;/p&gt;&lt;p&gt;Views projects of terrestrial laser scans: panoramas, spheres around each station and point clouds; picks coordinates, measures distances and keeps annotations beside each scan.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tarvenix Scan Viewer&lt;/h3&gt;&lt;p&gt;Version %1.%2.%3&lt;/p&gt;&lt;p&gt;Zeigt Projekte terrestrischer Laserscans: Panoramen, Sphären um jeden Standpunkt und Punktwolken; pickt Koordinaten, misst Abstände und bewahrt Annotationen neben jedem Scan auf.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The Tarvenix Software Suite registers, models and publishes terrestrial laser scans. This viewer opens the projects that the suite writes.</source>
        <translation>Die Tarvenix Software Suite registriert, modelliert und veröffentlicht terrestrische Laserscans. Dieser Viewer öffnet die Projekte, die die Suite schreibt.</translation>
    </message>
</context>
<context>
    <name>application start up</name>
    <message>
        <location filename="../app/main.cpp" line="+71"/>
        <source>Please specify your user name</source>
        <translation>Bitte geben Sie Ihren Benutzernamen an</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
</context>
</TS>
