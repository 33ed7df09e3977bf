<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>application start up</name>
    <message>
        <source>Please specify your user name</source>
        <translation>Bitte geben Sie Ihren Benutzernamen an</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ViewerSceneReader</name>
    <message>
        <source>The file is not an Tarvenix viewer version 1.0 or 2.0 file.</source>
        <translation>Die Datei ist keine Tarvenix-Viewer-Datei der Version 1.0 oder 2.0.</translation>
    </message>
    <message>
        <source>Invalid number of entities</source>
        <translation>Ungültige Anzahl von Einträgen</translation>
    </message>
    <message>
        <source>Unknown dimensioning type</source>
        <translation>Unbekannter Bemaßungstyp</translation>
    </message>
    <message>
        <source>Entity declarations are not supported</source>
        <translation>Entitätsdeklarationen werden nicht unterstützt</translation>
    </message>
    <message>
        <source>Elements are nested too deeply</source>
        <translation>Die Elemente sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>%1
Line %2, column %3</source>
        <translation>%1
Zeile %2, Spalte %3</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectMessages</name>
    <message>
        <source>A project is already open. Close it before opening another one.
</source>
        <translation>Es ist bereits ein Projekt geöffnet. Schließen Sie es, bevor Sie ein anderes öffnen.
</translation>
    </message>
    <message>
        <source>A lock file was found indicating that this directory is in use by another person or application.

</source>
        <translation>Es wurde eine Sperrdatei gefunden. Dieses Verzeichnis wird von einer anderen Person oder Anwendung verwendet.

</translation>
    </message>
    <message>
        <source>  user: %1
</source>
        <translation>  Benutzer: %1
</translation>
    </message>
    <message>
        <source>  directory: %1
</source>
        <translation>  Verzeichnis: %1
</translation>
    </message>
    <message>
        <source>  lockfile: %1
</source>
        <translation>  Sperrdatei: %1
</translation>
    </message>
    <message>
        <source>The lock file %1 could not be removed. The project stays open.
</source>
        <translation>Die Sperrdatei %1 konnte nicht entfernt werden. Das Projekt bleibt geöffnet.
</translation>
    </message>
    <message>
        <source>An error occured reading the project file %1.

</source>
        <translation>Beim Lesen der Projektdatei %1 ist ein Fehler aufgetreten.

</translation>
    </message>
    <message>
        <source>It was written with Tarvenix version: %1.%2.%3 using project format version: %4. </source>
        <translation>Sie wurde mit Tarvenix-Version %1.%2.%3 im Projektformat Version %4 geschrieben. </translation>
    </message>
    <message>
        <source>If this version is newer than the currently used version, you need to upgrade your Tarvenix Software Suite.
</source>
        <translation>Wenn diese Version neuer als die verwendete ist, müssen Sie Ihre Tarvenix Software Suite aktualisieren.
</translation>
    </message>
    <message>
        <source>The lock file %1 is no longer the one this application created; somebody else may have taken the project over. The project stays open.
</source>
        <translation>Die Sperrdatei %1 ist nicht mehr die von dieser Anwendung angelegte; möglicherweise hat jemand anderes das Projekt übernommen. Das Projekt bleibt geöffnet.
</translation>
    </message>
    <message>
        <source>Warning: Project file with was written with an older Tarvenix version (%1.%2.%3) using project format version: %4. </source>
        <translation>Warnung: Die Projektdatei wurde mit einer älteren Tarvenix-Version (%1.%2.%3) im Projektformat Version %4 geschrieben. </translation>
    </message>
    <message>
        <source>If you save this project again, it can be re-opened only with applications supporting the new project format.
</source>
        <translation>Wenn Sie dieses Projekt erneut speichern, kann es nur noch mit Anwendungen geöffnet werden, die das neue Projektformat unterstützen.
</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Planar View</source>
        <translation>Planare Ansicht</translation>
    </message>
    <message>
        <source>Spherical View</source>
        <translation>Sphärische Ansicht</translation>
    </message>
    <message>
        <source>Pointcloud View</source>
        <translation>Punktwolkenansicht</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ReferencePointsTableModel</name>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>X [m]</source>
        <translation>X [m]</translation>
    </message>
    <message>
        <source>Y [m]</source>
        <translation>Y [m]</translation>
    </message>
    <message>
        <source>Z [m]</source>
        <translation>Z [m]</translation>
    </message>
    <message>
        <source>Radius [m]</source>
        <translation>Radius [m]</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::DeleteLockFileDialog</name>
    <message>
        <source>Could Not Open Project Directory</source>
        <translation>Projektverzeichnis konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Delete Lock File</source>
        <translation>Sperrdatei löschen</translation>
    </message>
    <message>
        <source>Delete the lock file only when nobody else is working on this project. Changes of two people working on it at the same time would be lost.

Delete the lock file?</source>
        <translation>Löschen Sie die Sperrdatei nur, wenn niemand sonst an diesem Projekt arbeitet. Änderungen von zwei Personen, die gleichzeitig daran arbeiten, gingen verloren.

Sperrdatei löschen?</translation>
    </message>
</context>
</TS>
