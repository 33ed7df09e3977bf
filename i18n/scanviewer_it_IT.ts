<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>application start up</name>
    <message>
        <source>Please specify your user name</source>
        <translation>Specificare il nome utente</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ViewerSceneReader</name>
    <message>
        <source>The file is not an Tarvenix viewer version 1.0 or 2.0 file.</source>
        <translation>Il file non è un file di Tarvenix Viewer versione 1.0 o 2.0.</translation>
    </message>
    <message>
        <source>Invalid number of entities</source>
        <translation>Numero di elementi non valido</translation>
    </message>
    <message>
        <source>Unknown dimensioning type</source>
        <translation>Tipo di quotatura sconosciuto</translation>
    </message>
    <message>
        <source>Entity declarations are not supported</source>
        <translation>Le dichiarazioni di entità non sono supportate</translation>
    </message>
    <message>
        <source>Elements are nested too deeply</source>
        <translation>Gli elementi sono annidati a una profondità eccessiva</translation>
    </message>
    <message>
        <source>%1
Line %2, column %3</source>
        <translation>%1
Riga %2, colonna %3</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectMessages</name>
    <message>
        <source>A project is already open. Close it before opening another one.
</source>
        <translation>Un progetto è già aperto. Chiuderlo prima di aprirne un altro.
</translation>
    </message>
    <message>
        <source>A lock file was found indicating that this directory is in use by another person or application.

</source>
        <translation>È stato trovato un file di blocco: questa cartella è in uso da parte di un'altra persona o applicazione.

</translation>
    </message>
    <message>
        <source>  user: %1
</source>
        <translation>  utente: %1
</translation>
    </message>
    <message>
        <source>  directory: %1
</source>
        <translation>  cartella: %1
</translation>
    </message>
    <message>
        <source>  lockfile: %1
</source>
        <translation>  file di blocco: %1
</translation>
    </message>
    <message>
        <source>The lock file %1 could not be removed. The project stays open.
</source>
        <translation>Impossibile rimuovere il file di blocco %1. Il progetto resta aperto.
</translation>
    </message>
    <message>
        <source>An error occured reading the project file %1.

</source>
        <translation>Si è verificato un errore durante la lettura del file di progetto %1.

</translation>
    </message>
    <message>
        <source>It was written with Tarvenix version: %1.%2.%3 using project format version: %4. </source>
        <translation>È stato scritto con la versione di Tarvenix %1.%2.%3 con il formato di progetto versione %4. </translation>
    </message>
    <message>
        <source>If this version is newer than the currently used version, you need to upgrade your Tarvenix Software Suite.
</source>
        <translation>Se questa versione è più recente di quella in uso, è necessario aggiornare la Tarvenix Software Suite.
</translation>
    </message>
    <message>
        <source>The lock file %1 is no longer the one this application created; somebody else may have taken the project over. The project stays open.
</source>
        <translation>Il file di blocco %1 non è più quello creato da questa applicazione; forse un'altra persona ha preso in carico il progetto. Il progetto resta aperto.
</translation>
    </message>
    <message>
        <source>Warning: Project file with was written with an older Tarvenix version (%1.%2.%3) using project format version: %4. </source>
        <translation>Attenzione: il file di progetto è stato scritto con una versione precedente di Tarvenix (%1.%2.%3) con il formato di progetto versione %4. </translation>
    </message>
    <message>
        <source>If you save this project again, it can be re-opened only with applications supporting the new project format.
</source>
        <translation>Se si salva di nuovo questo progetto, potrà essere riaperto solo con applicazioni che supportano il nuovo formato di progetto.
</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Planar View</source>
        <translation>Vista planare</translation>
    </message>
    <message>
        <source>Spherical View</source>
        <translation>Vista sferica</translation>
    </message>
    <message>
        <source>Pointcloud View</source>
        <translation>Vista nuvola di punti</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ReferencePointsTableModel</name>
    <message>
        <source>Sphere</source>
        <translation>Sfera</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
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
        <translation>Raggio [m]</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::DeleteLockFileDialog</name>
    <message>
        <source>Could Not Open Project Directory</source>
        <translation>Impossibile aprire la cartella del progetto</translation>
    </message>
    <message>
        <source>Delete Lock File</source>
        <translation>Elimina file di blocco</translation>
    </message>
    <message>
        <source>Delete the lock file only when nobody else is working on this project. Changes of two people working on it at the same time would be lost.

Delete the lock file?</source>
        <translation>Eliminare il file di blocco solo se nessun altro sta lavorando a questo progetto. Le modifiche di due persone che vi lavorano contemporaneamente andrebbero perse.

Eliminare il file di blocco?</translation>
    </message>
</context>
</TS>
