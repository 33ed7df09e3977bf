<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>TVX::CORE::DeleteLockFileDialog</name>
    <message>
        <location filename="../libs/core/src/project/deletelockfiledialog.cpp" line="+13"/>
        <source>Could Not Open Project Directory</source>
        <translation>Impossibile aprire la cartella del progetto</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <source>Delete Lock File</source>
        <translation>Elimina file di blocco</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delete the lock file only when nobody else is working on this project. Changes of two people working on it at the same time would be lost.

Delete the lock file?</source>
        <translation>Eliminare il file di blocco solo se nessun altro sta lavorando a questo progetto. Le modifiche di due persone che vi lavorano contemporaneamente andrebbero perse.

Eliminare il file di blocco?</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeModel</name>
    <message>
        <location filename="../libs/core/src/project/filetreemodel.cpp" line="+244"/>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Planar View</source>
        <translation>Vista planare</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Spherical View</source>
        <translation>Vista sferica</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pointcloud View</source>
        <translation>Vista nuvola di punti</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectMessages</name>
    <message>
        <location filename="../libs/core/src/project/projectmessages.cpp" line="+9"/>
        <source>A project is already open. Close it before opening another one.
</source>
        <translation>Un progetto è già aperto. Chiuderlo prima di aprirne un altro.
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>A lock file was found indicating that this directory is in use by another person or application.

</source>
        <translation>È stato trovato un file di blocco: questa cartella è in uso da parte di un&apos;altra persona o applicazione.

</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>  user: %1
</source>
        <translation>  utente: %1
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>  directory: %1
</source>
        <translation>  cartella: %1
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>  lockfile: %1
</source>
        <translation>  file di blocco: %1
</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The lock file %1 could not be removed. The project stays open.
</source>
        <translation>Impossibile rimuovere il file di blocco %1. Il progetto resta aperto.
</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>An error occured reading the project file %1.

</source>
        <translation>Si è verificato un errore durante la lettura del file di progetto %1.

</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>It was written with Tarvenix version: %1.%2.%3 using project format version: %4. </source>
        <translation>È stato scritto con la versione di Tarvenix %1.%2.%3 con il formato di progetto versione %4. </translation>
    </message>
    <message>
        <location line="+5"/>
        <source>If this version is newer than the currently used version, you need to upgrade your Tarvenix Software Suite.
</source>
        <translation>Se questa versione è più recente di quella in uso, è necessario aggiornare la Tarvenix Software Suite.
</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The lock file %1 is no longer the one this application created; somebody else may have taken the project over. The project stays open.
</source>
        <translation>Il file di blocco %1 non è più quello creato da questa applicazione; forse un&apos;altra persona ha preso in carico il progetto. Il progetto resta aperto.
</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Warning: Project file with was written with an older Tarvenix version (%1.%2.%3) using project format version: %4. </source>
        <translation>Attenzione: il file di progetto è stato scritto con una versione precedente di Tarvenix (%1.%2.%3) con il formato di progetto versione %4. </translation>
    </message>
    <message>
        <location line="+6"/>
        <source>If you save this project again, it can be re-opened only with applications supporting the new project format.
</source>
        <translation>Se si salva di nuovo questo progetto, potrà essere riaperto solo con applicazioni che supportano il nuovo formato di progetto.
</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ReferencePointsTableModel</name>
    <message>
        <location filename="../libs/core/src/project/referencepointstablemodel.cpp" line="+42"/>
        <source>Sphere</source>
        <translation>Sfera</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Type</source>
        <translation>Tipo</translation>
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
        <translation>Raggio [m]</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ViewerSceneReader</name>
    <message>
        <location filename="../libs/core/src/annotations/viewerscenereader.cpp" line="+29"/>
        <source>The file is not an Tarvenix viewer version 1.0 or 2.0 file.</source>
        <translation>Il file non è un file di Tarvenix Viewer versione 1.0 o 2.0.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Invalid number of entities</source>
        <translation>Numero di elementi non valido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unknown dimensioning type</source>
        <translation>Tipo di quotatura sconosciuto</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Entity declarations are not supported</source>
        <translation>Le dichiarazioni di entità non sono supportate</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Elements are nested too deeply</source>
        <translation>Gli elementi sono annidati a una profondità eccessiva</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1
Line %2, column %3</source>
        <translation>%1
Riga %2, colonna %3</translation>
    </message>
</context>
</TS>
