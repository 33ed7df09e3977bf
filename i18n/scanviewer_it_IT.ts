<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>TVX::CORE::BasicMainWindow</name>
    <message>
        <location filename="../libs/core/src/mainwindow/basicmainwindow.cpp" line="+285"/>
        <source>Project</source>
        <translation>Progetto</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lens</source>
        <translation>Lente</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Point Information</source>
        <translation>Informazioni sul punto</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Report</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Open Project</source>
        <translation>Apri progetto</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save Project</source>
        <translation>Salva progetto</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pick 3D Coordinates</source>
        <translation>Rileva coordinate 3D</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear Point List</source>
        <translation>Svuota elenco punti</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear Picked Points from View</source>
        <translation>Rimuovi i punti rilevati dalla vista</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Edit Elements</source>
        <translation>Modifica elementi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom In</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom Out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom All</source>
        <translation>Mostra tutto</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cascade Windows</source>
        <translation>Finestre a cascata</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cascade all Mdi Windows</source>
        <translation>Disponi tutte le finestre MDI a cascata</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tile Windows</source>
        <translation>Affianca finestre</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tile all Mdi Windows</source>
        <translation>Affianca tutte le finestre MDI</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close All Windows</source>
        <translation>Chiudi tutte le finestre</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Close all Mdi Windows</source>
        <translation>Chiudi tutte le finestre MDI</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Add Polygon</source>
        <translation>Aggiungi poligono</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Add Rectangle</source>
        <translation>Aggiungi rettangolo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add Ellipse</source>
        <translation>Aggiungi ellisse</translation>
    </message>
    <message>
        <location line="-232"/>
        <location line="+233"/>
        <source>Add Text</source>
        <translation>Aggiungi testo</translation>
    </message>
    <message>
        <location line="-233"/>
        <source>Text:</source>
        <translation>Testo:</translation>
    </message>
    <message>
        <location line="+244"/>
        <source>3D Distance</source>
        <translation>Distanza 3D</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance in XY</source>
        <translation>Distanza in XY</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delta Z</source>
        <translation>Delta Z</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Detailed Distance Information</source>
        <translation>Informazioni dettagliate sulla distanza</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Undo Clear Point List</source>
        <translation>Annulla lo svuotamento dell&apos;elenco punti</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>File Operations</source>
        <translation>Operazioni sui file</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom Operations</source>
        <translation>Operazioni di zoom</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Drawing Tools</source>
        <translation>Strumenti di disegno</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Measurement Tools</source>
        <translation>Strumenti di misura</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Point-based Operations</source>
        <translation>Operazioni sui punti</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Recently Opened Files</source>
        <translation>File aperti di recente</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Toolbars</source>
        <translation>Barre degli strumenti</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Windows</source>
        <translation>Finestre</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Windows</source>
        <translation>&amp;Finestre</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <location line="+71"/>
        <location line="+125"/>
        <location line="+432"/>
        <source>Read-only project</source>
        <translation>Progetto in sola lettura</translation>
    </message>
    <message>
        <location line="-556"/>
        <location line="+125"/>
        <location line="+432"/>
        <source>Changes could not be saved, because the project was opened in read-only mode.</source>
        <translation>Non è stato possibile salvare le modifiche, perché il progetto è stato aperto in sola lettura.</translation>
    </message>
    <message>
        <location line="-553"/>
        <source>Save Changes?</source>
        <translation>Salvare le modifiche?</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Changes where made to one or more views. Should they be stored permanently?</source>
        <translation>Sono state apportate modifiche a una o più viste. Salvarle in modo permanente?</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+111"/>
        <source>File IO Error</source>
        <translation>Errore di I/O su file</translation>
    </message>
    <message>
        <location line="-111"/>
        <source>An error occurred during saving the changes permanently. Try again?</source>
        <translation>Si è verificato un errore durante il salvataggio permanente delle modifiche. Riprovare?</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Select Project File</source>
        <translation>Seleziona file di progetto</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tarvenix Project File (*.tvxprj)</source>
        <translation>File di progetto Tarvenix (*.tvxprj)</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+43"/>
        <location line="+6"/>
        <source>Could Not Open Project Directory</source>
        <translation>Impossibile aprire la cartella del progetto</translation>
    </message>
    <message>
        <location line="-48"/>
        <source>The project directory %1 does not exist.</source>
        <translation>La cartella del progetto %1 non esiste.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Warning: Old Project File Version</source>
        <translation>Avviso: versione obsoleta del file di progetto</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Project %1 opened%2.</source>
        <translation>Progetto %1 aperto%2.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> read-only</source>
        <translation> in sola lettura</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Scan not readable: %1</source>
        <translation>Scansione non leggibile: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Scans Could Not Be Read</source>
        <translation>Impossibile leggere le scansioni</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The following scans of the project could not be read and are not shown:

%1</source>
        <translation>Le seguenti scansioni del progetto non possono essere lette e non vengono mostrate:

%1</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The lock file %1 could not be deleted.</source>
        <translation>Impossibile eliminare il file di blocco %1.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Lock file %1 deleted by the user.</source>
        <translation>File di blocco %1 eliminato dall&apos;utente.</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Project %1 saved.</source>
        <translation>Progetto %1 salvato.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Could Not Close Project</source>
        <translation>Impossibile chiudere il progetto</translation>
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
        <translation>Aggiungi scansioni</translation>
    </message>
    <message>
        <location line="-28"/>
        <source>Scans (*.tvx %1);;Scan Files (*.tvx);;Scans of Other Scanners (%1)</source>
        <translation>Scansioni (*.tvx %1);;File di scansione (*.tvx);;Scansioni di altri scanner (%1)</translation>
    </message>
    <message>
        <location line="+231"/>
        <source>The scan %1 cannot be read.</source>
        <translation>Impossibile leggere la scansione %1.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Spherical View: </source>
        <translation>Vista sferica: </translation>
    </message>
    <message>
        <location line="+43"/>
        <source>The points of scan %1 cannot be read: %2</source>
        <translation>Impossibile leggere i punti della scansione %1: %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Pointcloud View: </source>
        <translation>Vista nuvola di punti: </translation>
    </message>
    <message>
        <location line="-271"/>
        <source>Scan %1 added.</source>
        <translation>Scansione %1 aggiunta.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>These scans could not be added:

%1</source>
        <translation>Non è stato possibile aggiungere queste scansioni:

%1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Importing %1 ...</source>
        <translation>Importazione di %1 ...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Import of %1 cancelled; nothing was added.</source>
        <translation>Importazione di %1 annullata; non è stato aggiunto nulla.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Scans imported from %1 into the folder %2: %3.</source>
        <translation>Scansioni importate da %1 nella cartella %2: %3.</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>Open Planar View</source>
        <translation>Apri vista planare</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Spherical View</source>
        <translation>Apri vista sferica</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Pointcloud View</source>
        <translation>Apri vista nuvola di punti</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close Views of this Scan</source>
        <translation>Chiudi le viste di questa scansione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close Views of all other Scans</source>
        <translation>Chiudi le viste di tutte le altre scansioni</translation>
    </message>
    <message>
        <location line="+39"/>
        <location line="+58"/>
        <source>The panorama %1 cannot be read.</source>
        <translation>Impossibile leggere il panorama %1.</translation>
    </message>
    <message>
        <location line="-57"/>
        <location line="+59"/>
        <location line="+51"/>
        <source>Open a new View Failed</source>
        <translation>Apertura di una nuova vista non riuscita</translation>
    </message>
    <message>
        <location line="-109"/>
        <location line="+59"/>
        <location line="+51"/>
        <source>Tarvenix was unable to open a new scan view. Please close some other views and try again.</source>
        <translation>Tarvenix non è riuscito ad aprire una nuova vista della scansione. Chiudere alcune altre viste e riprovare.</translation>
    </message>
    <message>
        <location line="-105"/>
        <source>Planar View: </source>
        <translation>Vista planare: </translation>
    </message>
    <message>
        <location line="+182"/>
        <source>Error reading file</source>
        <translation>Errore di lettura del file</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Parse error in file %1:

%2</source>
        <translation>Errore di sintassi nel file %1:

%2</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Internal Error</source>
        <translation>Errore interno</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No scene information for scan found.</source>
        <translation>Nessuna informazione di scena trovata per la scansione.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Annotations saved to %1.</source>
        <translation>Annotazioni salvate in %1.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Annotations not saved to %1: %2</source>
        <translation>Annotazioni non salvate in %1: %2</translation>
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
        <translation>Errore di scrittura dei file</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Could not write the following files:
</source>
        <translation>Non è stato possibile scrivere i seguenti file:
</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>Area selected in %1: columns %2 to %3, rows %4 to %5.</source>
        <translation>Area selezionata in %1: colonne da %2 a %3, righe da %4 a %5.</translation>
    </message>
    <message>
        <location line="+121"/>
        <source>No point at column %1, row %2 of scan %3.</source>
        <translation>Nessun punto alla colonna %1, riga %2 della scansione %3.</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Missing Information</source>
        <translation>Informazioni mancanti</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>You need to specify two points in the same or in different scans before.</source>
        <translation>È necessario prima specificare due punti nella stessa scansione o in scansioni diverse.</translation>
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
        <translation>Distanza 3D: %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance XY: %1 m</source>
        <translation>Distanza XY: %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance Information</source>
        <translation>Informazioni sulla distanza</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>c: %1,  r: %2</source>
        <comment>abbreviation for column and row</comment>
        <translation>c: %1,  r: %2</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>c: %1, r: %2,   x: %3, y: %4, z: %5, dist: %6</source>
        <translation>c: %1, r: %2,   x: %3, y: %4, z: %5, dist.: %6</translation>
    </message>
    <message>
        <location filename="../libs/core/src/mainwindow/planarviewcontent.cpp" line="+53"/>
        <source>distance: %1 m</source>
        <translation>distanza: %1 m</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::BasicProject</name>
    <message>
        <location filename="../libs/core/src/project/basicproject.cpp" line="+296"/>
        <source>the file cannot be opened</source>
        <translation>il file non può essere aperto</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>the header cannot be read</source>
        <translation>l&apos;intestazione non può essere letta</translation>
    </message>
    <message>
        <location line="+252"/>
        <source>the project is open read-only</source>
        <translation>il progetto è aperto in sola lettura</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the unreadable annotation file cannot be kept as %1</source>
        <translation>il file di annotazioni illeggibile non può essere conservato come %1</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>no project is open</source>
        <translation>nessun progetto aperto</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::DeleteLockFileDialog</name>
    <message>
        <location filename="../libs/core/src/mainwindow/deletelockfiledialog.cpp" line="+13"/>
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
    <name>TVX::CORE::E57PagedFile</name>
    <message>
        <location filename="../libs/core/src/fileio/e57pagedfile.cpp" line="+24"/>
        <source>page size %1 is not between %2 and %3</source>
        <translation>la dimensione di pagina %1 non è compresa tra %2 e %3</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>page %1 lies past the end of the file (%2 pages)</source>
        <translation>la pagina %1 si trova oltre la fine del file (%2 pagine)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>cannot read page %1: %2</source>
        <translation>impossibile leggere la pagina %1: %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>page %1: the checksum does not match</source>
        <translation>pagina %1: il checksum non corrisponde</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57Reader</name>
    <message>
        <location filename="../libs/core/src/fileio/e57reader.cpp" line="+111"/>
        <source>the image blob at byte %1 is not one</source>
        <translation>il blocco immagine al byte %1 non è valido</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the compressed vector at byte %1 lies past the end of the file</source>
        <translation>il vettore compresso al byte %1 si trova oltre la fine del file</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>byte %1 holds no compressed vector section</source>
        <translation>il byte %1 non contiene una sezione di vettore compresso</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the compressed vector at byte %1 claims %2 bytes, more than the file holds</source>
        <translation>il vettore compresso al byte %1 dichiara %2 byte, più di quanti ne contenga il file</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>the data of the compressed vector at byte %1 lie outside its section</source>
        <translation>i dati del vettore compresso al byte %1 si trovano fuori dalla sua sezione</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>the packet at byte %1 runs past the end of its section</source>
        <translation>il pacchetto al byte %1 supera la fine della sua sezione</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>byte %1 holds no packet</source>
        <translation>il byte %1 non contiene alcun pacchetto</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the packet at byte %1 holds %2 bytestreams for %3 fields</source>
        <translation>il pacchetto al byte %1 contiene %2 flussi di byte per %3 campi</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the packet at byte %1 is shorter than its header</source>
        <translation>il pacchetto al byte %1 è più corto della sua intestazione</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the bytestreams of the packet at byte %1 run past its end</source>
        <translation>i flussi di byte del pacchetto al byte %1 superano la sua fine</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the field %1 runs ahead of the others by more than %2 bytes</source>
        <translation>il campo %1 precede gli altri di più di %2 byte</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>the compressed vector ends after %1 of %2 records</source>
        <translation>il vettore compresso termina dopo %1 di %2 record</translation>
    </message>
    <message>
        <location line="+71"/>
        <source>record %1: the coordinates are not finite</source>
        <translation>record %1: le coordinate non sono finite</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>&quot;%1&quot; is no number</source>
        <translation>&quot;%1&quot; non è un numero</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>&quot;%1&quot; is no integer</source>
        <translation>&quot;%1&quot; non è un numero intero</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>%1 &quot;%2&quot; lies outside the file&apos;s data</source>
        <translation>%1 &quot;%2&quot; si trova fuori dai dati del file</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>the quaternion has no length</source>
        <translation>il quaternione ha lunghezza nulla</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>%1 &quot;%2&quot; is no number</source>
        <translation>%1 &quot;%2&quot; non è un numero</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>minimum %1 lies above maximum %2</source>
        <translation>il minimo %1 è superiore al massimo %2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>a point field of type &quot;%1&quot;</source>
        <translation>un campo di punti di tipo &quot;%1&quot;</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Scan %1</source>
        <translation>Scansione %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>no compressed vector of points</source>
        <translation>nessun vettore compresso di punti</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>no record count</source>
        <translation>nessun numero di record</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>only the bit-pack codec is supported</source>
        <translation>è supportato solo il codec bit-pack</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>no prototype</source>
        <translation>nessun prototipo</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the field %1 comes twice</source>
        <translation>il campo %1 compare due volte</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>the points have neither cartesian nor spherical coordinates</source>
        <translation>i punti non hanno né coordinate cartesiane né sferiche</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>a row index without a column index, or the other way round</source>
        <translation>un indice di riga senza indice di colonna, o viceversa</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>%1 %2 makes no grid</source>
        <translation>%1 %2 non forma una griglia</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>a grid of %1 × %2 is too large</source>
        <translation>una griglia di %1 × %2 è troppo grande</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>an image of %1 bytes</source>
        <translation>un&apos;immagine di %1 byte</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>too short for an E57 file</source>
        <translation>troppo corto per un file E57</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not an E57 file</source>
        <translation>non è un file E57</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>E57 version %1 is not supported</source>
        <translation>la versione E57 %1 non è supportata</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the file is %1 bytes long, its header says %2</source>
        <translation>il file è lungo %1 byte, la sua intestazione dice %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the XML section (%1 bytes at byte %2) does not fit the file</source>
        <translation>la sezione XML (%1 byte al byte %2) non rientra nel file</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>XML section, %1</source>
        <translation>sezione XML, %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>no scan in the file</source>
        <translation>nessuna scansione nel file</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57XmlNode</name>
    <message>
        <location filename="../libs/core/src/fileio/e57xmlnode.cpp" line="+19"/>
        <source>line %1: the XML is too large or too deep</source>
        <translation>riga %1: l&apos;XML è troppo grande o troppo annidato</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeModel</name>
    <message>
        <location filename="../libs/core/src/project/filetreemodel.cpp" line="+246"/>
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
    <name>TVX::CORE::FileTreeView</name>
    <message>
        <location filename="../libs/core/src/mainwindow/filetreeview.cpp" line="+85"/>
        <location line="+62"/>
        <source>Delete Items</source>
        <translation>Elimina elementi</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Add Scans</source>
        <translation>Aggiungi scansioni</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add Folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rename Folder</source>
        <translation>Rinomina cartella</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Expand Folder</source>
        <translation>Espandi cartella</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Collapse Folder</source>
        <translation>Comprimi cartella</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Planar View</source>
        <translation>Apri vista planare</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Spherical View</source>
        <translation>Apri vista sferica</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Pointcloud View</source>
        <translation>Apri vista nuvola di punti</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close Views of this Scan</source>
        <translation>Chiudi le viste di questa scansione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close Views of all other Scans</source>
        <translation>Chiudi le viste di tutte le altre scansioni</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>New Folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Delete the selected items from the project? The scan files stay on disk.</source>
        <translation>Eliminare dal progetto gli elementi selezionati? I file di scansione restano sul disco.</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::LogTableModel</name>
    <message>
        <location filename="../libs/core/src/mainwindow/logtablemodel.cpp" line="+46"/>
        <source>Type</source>
        <comment>Type of Log Message (Warning, Error, ...</comment>
        <translation>Tipo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::MDIPointcloudViewSubWindow</name>
    <message>
        <location filename="../libs/core/src/mainwindow/mdipointcloudviewsubwindow.cpp" line="+27"/>
        <source>Reset up-vector</source>
        <translation>Reimposta il vettore verticale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Background Color</source>
        <translation>Colore di sfondo</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointInfoTableModel</name>
    <message>
        <location filename="../libs/core/src/mainwindow/pointinfotablemodel.cpp" line="+118"/>
        <source>Column</source>
        <translation>Colonna</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Row</source>
        <translation>Riga</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refl.</source>
        <translation>Rifl.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance</source>
        <translation>Distanza</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Filename</source>
        <translation>Nome file</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointInfoTableView</name>
    <message>
        <location filename="../libs/core/src/mainwindow/pointinfotableview.cpp" line="+29"/>
        <source>Specify z-Coordinate</source>
        <translation>Specifica coordinata z</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>Save Entries to File</source>
        <translation>Salva voci su file</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset z-Coordinate to 0.0</source>
        <translation>Reimposta coordinata z a 0.0</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set Value of z-Coordinate</source>
        <translation>Imposta valore della coordinata z</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointcloudViewGLWidget</name>
    <message>
        <location filename="../libs/core/src/glviews/pointcloudviewglwidget.cpp" line="+303"/>
        <source>Background Color</source>
        <translation>Colore di sfondo</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Scan Colours</source>
        <translation>Colori della scansione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Intensity</source>
        <translation>Intensità</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Dark Grey</source>
        <translation>Grigio scuro</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Orange</source>
        <translation>Arancione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>White</source>
        <translation>Bianco</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectImport</name>
    <message>
        <location filename="../libs/core/src/project/projectimport.cpp" line="+70"/>
        <source>%1: only PTX and E57 files can be imported</source>
        <translation>%1: si possono importare solo file PTX ed E57</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>no project is open for writing</source>
        <translation>nessun progetto è aperto in scrittura</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+89"/>
        <source>cannot create %1</source>
        <translation>impossibile creare %1</translation>
    </message>
    <message>
        <location line="-56"/>
        <source>%1: not enough memory</source>
        <translation>%1: memoria insufficiente</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>%1: the written scan cannot be read back: %2</source>
        <translation>%1: impossibile rileggere la scansione scritta: %2</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>%1 cannot be written</source>
        <translation>impossibile scrivere %1</translation>
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
    <message>
        <location line="+6"/>
        <source>
Cause: %1
</source>
        <translation>
Causa: %1
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Changes could not be saved, because the project was opened in read-only mode.</source>
        <translation>Non è stato possibile salvare le modifiche, perché il progetto è stato aperto in sola lettura.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The project file %1 could not be written.
</source>
        <translation>Impossibile scrivere il file di progetto %1.
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The project file %1 was missing; it was restored from the copy that the last save left behind.
</source>
        <translation>Il file di progetto %1 mancava; è stato ripristinato dalla copia lasciata dall&apos;ultimo salvataggio.
</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PtxReader</name>
    <message>
        <location filename="../libs/core/src/fileio/ptxreader.cpp" line="+37"/>
        <source>cannot seek to byte %1</source>
        <translation>impossibile posizionarsi al byte %1</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>line longer than %1 bytes</source>
        <translation>riga più lunga di %1 byte</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>cannot read: %1</source>
        <translation>impossibile leggere: %1</translation>
    </message>
    <message>
        <location line="+106"/>
        <source>the file ends inside a scan</source>
        <translation>il file termina all&apos;interno di una scansione</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>expected %1 numbers</source>
        <translation>attesi %1 numeri</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+32"/>
        <source>a number that is not finite</source>
        <translation>un numero non finito</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>the file ends inside a scan header</source>
        <translation>il file termina all&apos;interno dell&apos;intestazione di una scansione</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>a header line of %1 numbers expected</source>
        <translation>attesa una riga di intestazione di %1 numeri</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 %2 is not between 1 and %3</source>
        <translation>%1 %2 non è compreso tra 1 e %3</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Scan %1</source>
        <translation>Scansione %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>column count</source>
        <translation>numero di colonne</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>row count</source>
        <translation>numero di righe</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 × %2 points are more than %3</source>
        <translation>%1 × %2 punti sono più di %3</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>the file ends at line %1, inside scan %2 of %3 × %4 points</source>
        <translation>il file termina alla riga %1, all&apos;interno della scansione %2 di %3 × %4 punti</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>expected 4 or 7 numbers</source>
        <translation>attesi 4 o 7 numeri</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>no scan in the file</source>
        <translation>nessuna scansione nel file</translation>
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
    <name>TVX::CORE::ScanImporter</name>
    <message>
        <location filename="../libs/core/src/fileio/scanimporter.cpp" line="+117"/>
        <source>a point at column %1, row %2 lies outside the grid of %3 × %4</source>
        <translation>un punto alla colonna %1, riga %2 si trova fuori dalla griglia di %3 × %4</translation>
    </message>
    <message>
        <location line="+94"/>
        <source>a grid of %1 × %2 for only %3 points</source>
        <translation>una griglia di %1 × %2 per soli %3 punti</translation>
    </message>
    <message>
        <location line="+111"/>
        <source>no point with a return to grid</source>
        <translation>nessun punto con ritorno da disporre in griglia</translation>
    </message>
    <message>
        <location line="+79"/>
        <source>a step of %1° makes more than %2 cells; choose a larger step</source>
        <translation>un passo di %1° produce più di %2 celle; sceglierne uno più grande</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>the point of cell (%1, %2) is not finite</source>
        <translation>il punto della cella (%1, %2) non è finito</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the point of cell (%1, %2) lies %3 m away, beyond the %4 m that scan files store</source>
        <translation>il punto della cella (%1, %2) dista %3 m, oltre i %4 m che i file di scansione memorizzano</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>the grid of %1 × %2 is too large to be held whole; at most %3 cells</source>
        <translation>la griglia di %1 × %2 è troppo grande per essere tenuta intera; al massimo %3 celle</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>the points of column %1 are not stored together</source>
        <translation>i punti della colonna %1 non sono memorizzati insieme</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>its panorama image cannot be decoded</source>
        <translation>impossibile decodificare la sua immagine panoramica</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>no memory for a panorama of %1 × %2 pixels</source>
        <translation>memoria insufficiente per un panorama di %1 × %2 pixel</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::SphericalViewGLWidget</name>
    <message>
        <location filename="../libs/core/src/glviews/sphericalviewglwidget.cpp" line="+220"/>
        <source>Error Initializing Display Driver</source>
        <translation>Errore durante l&apos;inizializzazione del driver grafico</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenGL driver could not be initialized without errors.</source>
        <translation>Non è stato possibile inizializzare il driver OpenGL senza errori.</translation>
    </message>
    <message>
        <location line="+232"/>
        <source>%1
distance: %2 m</source>
        <translation>%1
distanza: %2 m</translation>
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
<context>
    <name>TVX::VIEWER::PreferencesWidget</name>
    <message>
        <location filename="../app/preferenceswidget.cpp" line="+67"/>
        <source>Edit Preferences</source>
        <translation>Modifica preferenze</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Reset:</source>
        <translation>Ripristino:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset Application Settings to Defaults</source>
        <translation>Ripristina le impostazioni predefinite dell&apos;applicazione</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Language Selection:</source>
        <translation>Selezione della lingua:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use System Default</source>
        <translation>Usa l&apos;impostazione di sistema</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Use Other than System Default</source>
        <translation>Usa una lingua diversa da quella di sistema</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>English</source>
        <translation>Inglese</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>German</source>
        <translation>Tedesco</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Spanish</source>
        <translation>Spagnolo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>French</source>
        <translation>Francese</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Application Parameter:</source>
        <translation>Parametri dell&apos;applicazione:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show Station Marks</source>
        <translation>Mostra i segni di stazione</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Same as Active Window</source>
        <translation>Come la finestra attiva</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Planar View</source>
        <translation>Vista planare</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Spherical View</source>
        <translation>Vista sferica</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PointCloud View</source>
        <translation>Vista nuvola di punti</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>minimal Distance:</source>
        <translation>Distanza minima:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>maximal Distance:</source>
        <translation>Distanza massima:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>View to be opened by default:</source>
        <translation>Vista da aprire per impostazione predefinita:</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Reset Application Settings</source>
        <translation>Ripristina impostazioni dell&apos;applicazione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All application settings are reset to their defaults. Please restart all Tarvnix applications before you continue.</source>
        <translation>Tutte le impostazioni dell&apos;applicazione sono state ripristinate ai valori predefiniti. Riavviare tutte le applicazioni Tarvnix prima di continuare.</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::ShowProjectCoordSysDialog</name>
    <message>
        <location filename="../app/showprojectcoordsysdialog.cpp" line="+53"/>
        <source>The project file holds no valid number here.</source>
        <translation>Il file di progetto non contiene un numero valido in questo punto.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Project Coordinate Systems</source>
        <translation>Sistemi di coordinate del progetto</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>default</source>
        <translation>predefinito</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Rotation</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Translation</source>
        <translation>Traslazione</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1 (m):</source>
        <translation>%1 (m):</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Coordinate system:</source>
        <translation>Sistema di coordinate:</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::StartupHelpWidget</name>
    <message>
        <location filename="../app/startuphelpwidget.cpp" line="+20"/>
        <source>Quick Introduction</source>
        <translation>Introduzione rapida</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Show this help on startup</source>
        <translation>Mostra questa guida all&apos;avvio</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>&lt;h2&gt;Welcome to the Scan Viewer&lt;/h2&gt;&lt;p&gt;The viewer shows projects of terrestrial laser scans: you look at the scans, pick 3D coordinates, measure distances and draw annotations.&lt;/p&gt;&lt;h3&gt;Projects&lt;/h3&gt;&lt;p&gt;A project is a folder that holds a project file and a folder named &lt;i&gt;scans&lt;/i&gt; with the scan files and their panorama images. Open it with &lt;b&gt;File &amp;gt; Open Project&lt;/b&gt;; the last ten projects are listed under &lt;b&gt;File &amp;gt; Recently Opened Files&lt;/b&gt;. While you work on a project, others can only open it read-only.&lt;/p&gt;&lt;h3&gt;The project tree&lt;/h3&gt;&lt;p&gt;The &lt;b&gt;Project&lt;/b&gt; dock lists the scans in their folders. Double click a scan to open it in the default view. The context menu (right mouse button) opens the planar, spherical or point cloud view of the selected scans, closes their views, and adds scans and folders, renames folders or deletes items. Drag items to arrange them in folders; the check box of a scan switches it off and closes its views.&lt;/p&gt;&lt;h3&gt;The three views&lt;/h3&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Planar view&lt;/b&gt;: the panorama image of the scan, one pixel per measured cell.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Spherical view&lt;/b&gt;: the panorama around the scanner&apos;s position, as if you stood there; drag to look around.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Point cloud view&lt;/b&gt;: the measured points in 3D; drag to turn the cloud.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Any number of views can be open at once; &lt;b&gt;Windows&lt;/b&gt; arranges or closes them. The zoom tools and &lt;b&gt;Zoom All&lt;/b&gt; change the magnification; hold the middle mouse button, or Ctrl and the left button, to pan.&lt;/p&gt;&lt;h3&gt;Picking coordinates&lt;/h3&gt;&lt;p&gt;With &lt;b&gt;Pick 3D Coordinates&lt;/b&gt; on, click into a view: the point&apos;s column, row, coordinates, reflectance and distance are added to the &lt;b&gt;Point Information&lt;/b&gt; dock. &lt;b&gt;Clear Point List&lt;/b&gt; empties the list; &lt;b&gt;Clear Picked Points from View&lt;/b&gt; removes the marks.&lt;/p&gt;&lt;h3&gt;Measuring&lt;/h3&gt;&lt;p&gt;The measuring tools &lt;b&gt;3D Distance&lt;/b&gt;, &lt;b&gt;Distance in XY&lt;/b&gt; and &lt;b&gt;Delta Z&lt;/b&gt; place a dimensioning between two points you click. &lt;b&gt;Detailed Distance Information&lt;/b&gt; shows all three distances between the last two picked points.&lt;/p&gt;&lt;h3&gt;Annotations&lt;/h3&gt;&lt;p&gt;Draw polygons, rectangles, ellipses and texts with the drawing tools; a polygon is closed with a double click. &lt;b&gt;Edit Elements&lt;/b&gt; lets you move and reshape them. Annotations are kept per scan and saved with the project by &lt;b&gt;File &amp;gt; Save Project&lt;/b&gt;.&lt;/p&gt;&lt;h3&gt;The lens&lt;/h3&gt;&lt;p&gt;Hold Shift while you move the mouse over a planar view: the &lt;b&gt;Lens&lt;/b&gt; dock magnifies the cells around the cursor and shows the coordinates of the cell in its centre.&lt;/p&gt;&lt;h3&gt;Station marks&lt;/h3&gt;&lt;p&gt;The positions of the other scans nearby are shown as station marks. Double click one to open that scan.&lt;/p&gt;&lt;h3&gt;Preferences&lt;/h3&gt;&lt;p&gt;&lt;b&gt;Preferences...&lt;/b&gt; in the help menu sets the language, whether station marks are shown and within which distances, and which view a double click in the project tree opens. &lt;b&gt;Project Coordinates...&lt;/b&gt; shows the coordinate systems of the project.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Benvenuti nello Scan Viewer&lt;/h2&gt;&lt;p&gt;Il viewer mostra progetti di scansioni laser terrestri: si osservano le scansioni, si rilevano coordinate 3D, si misurano distanze e si disegnano annotazioni.&lt;/p&gt;&lt;h3&gt;Progetti&lt;/h3&gt;&lt;p&gt;Un progetto è una cartella che contiene un file di progetto e una cartella denominata &lt;i&gt;scans&lt;/i&gt; con i file di scansione e le relative immagini panoramiche. Aprirlo con &lt;b&gt;File &amp;gt; Apri progetto&lt;/b&gt;; gli ultimi dieci progetti sono elencati in &lt;b&gt;File &amp;gt; File aperti di recente&lt;/b&gt;. Mentre si lavora su un progetto, gli altri possono aprirlo solo in sola lettura.&lt;/p&gt;&lt;h3&gt;L&apos;albero del progetto&lt;/h3&gt;&lt;p&gt;Il pannello &lt;b&gt;Progetto&lt;/b&gt; elenca le scansioni nelle loro cartelle. Un doppio clic su una scansione la apre nella vista predefinita. Il menu contestuale (tasto destro del mouse) apre la vista planare, sferica o nuvola di punti delle scansioni selezionate, ne chiude le viste, aggiunge scansioni e cartelle, rinomina cartelle o elimina elementi. Trascinare gli elementi per disporli nelle cartelle; la casella di controllo di una scansione la disattiva e ne chiude le viste.&lt;/p&gt;&lt;h3&gt;Le tre viste&lt;/h3&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Vista planare&lt;/b&gt;: l&apos;immagine panoramica della scansione, un pixel per ogni cella misurata.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Vista sferica&lt;/b&gt;: il panorama attorno alla posizione dello scanner, come se ci si trovasse lì; trascinare per guardarsi intorno.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Vista nuvola di punti&lt;/b&gt;: i punti misurati in 3D; trascinare per ruotare la nuvola.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;È possibile tenere aperte più viste contemporaneamente; &lt;b&gt;Finestre&lt;/b&gt; le dispone o le chiude. Gli strumenti di zoom e &lt;b&gt;Mostra tutto&lt;/b&gt; cambiano l&apos;ingrandimento; tenere premuto il tasto centrale del mouse, oppure Ctrl e il tasto sinistro, per spostare la vista.&lt;/p&gt;&lt;h3&gt;Rilevare coordinate&lt;/h3&gt;&lt;p&gt;Con &lt;b&gt;Rileva coordinate 3D&lt;/b&gt; attivo, fare clic in una vista: colonna, riga, coordinate, riflettanza e distanza del punto vengono aggiunte al pannello &lt;b&gt;Informazioni sul punto&lt;/b&gt;. &lt;b&gt;Svuota elenco punti&lt;/b&gt; svuota l&apos;elenco; &lt;b&gt;Rimuovi i punti rilevati dalla vista&lt;/b&gt; rimuove i segni.&lt;/p&gt;&lt;h3&gt;Misurare&lt;/h3&gt;&lt;p&gt;Gli strumenti di misura &lt;b&gt;Distanza 3D&lt;/b&gt;, &lt;b&gt;Distanza in XY&lt;/b&gt; e &lt;b&gt;Delta Z&lt;/b&gt; collocano una quotatura tra due punti su cui si fa clic. &lt;b&gt;Informazioni dettagliate sulla distanza&lt;/b&gt; mostra tutte e tre le distanze tra gli ultimi due punti rilevati.&lt;/p&gt;&lt;h3&gt;Annotazioni&lt;/h3&gt;&lt;p&gt;Disegnare poligoni, rettangoli, ellissi e testi con gli strumenti di disegno; un poligono si chiude con un doppio clic. &lt;b&gt;Modifica elementi&lt;/b&gt; consente di spostarli e rimodellarli. Le annotazioni sono conservate per ogni scansione e salvate con il progetto tramite &lt;b&gt;File &amp;gt; Salva progetto&lt;/b&gt;.&lt;/p&gt;&lt;h3&gt;La lente&lt;/h3&gt;&lt;p&gt;Tenere premuto Maiusc mentre si muove il mouse su una vista planare: il pannello &lt;b&gt;Lente&lt;/b&gt; ingrandisce le celle attorno al cursore e mostra le coordinate della cella centrale.&lt;/p&gt;&lt;h3&gt;Segni di stazione&lt;/h3&gt;&lt;p&gt;Le posizioni delle altre scansioni vicine sono mostrate come segni di stazione. Un doppio clic su un segno apre quella scansione.&lt;/p&gt;&lt;h3&gt;Preferenze&lt;/h3&gt;&lt;p&gt;&lt;b&gt;Preferenze...&lt;/b&gt; nel menu Aiuto imposta la lingua, se e entro quali distanze mostrare i segni di stazione e quale vista apre un doppio clic nell&apos;albero del progetto. &lt;b&gt;Coordinate del progetto...&lt;/b&gt; mostra i sistemi di coordinate del progetto.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::ViewerMainWindow</name>
    <message>
        <location filename="../app/viewermainwindow.cpp" line="+34"/>
        <source>Preferences...</source>
        <translation>Preferenze...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Project Coordinates...</source>
        <translation>Coordinate del progetto...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show Quick Introduction</source>
        <translation>Mostra introduzione rapida</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+63"/>
        <source>About Tarvenix Scan Viewer</source>
        <translation>Informazioni su Tarvenix Scan Viewer</translation>
    </message>
    <message>
        <location line="-62"/>
        <location line="+74"/>
        <source>More About Tarvenix</source>
        <translation>Ulteriori informazioni su Tarvenix</translation>
    </message>
    <message>
        <location line="-72"/>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>&lt;h3&gt;Tarvenix Scan Viewer&lt;/h3&gt;&lt;p&gt;Version %1.%2.%3&lt;/p&gt;&lt;p&gt;Views projects of terrestrial laser scans: panoramas, spheres around each station and point clouds; picks coordinates, measures distances and keeps annotations beside each scan.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tarvenix Scan Viewer&lt;/h3&gt;&lt;p&gt;Versione %1.%2.%3&lt;/p&gt;&lt;p&gt;Visualizza progetti di scansioni laser terrestri: panorami, sfere attorno a ogni stazione e nuvole di punti; rileva coordinate, misura distanze e conserva annotazioni accanto a ogni scansione.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The Tarvenix Software Suite registers, models and publishes terrestrial laser scans. This viewer opens the projects that the suite writes.</source>
        <translation>La Tarvenix Software Suite registra, modella e pubblica scansioni laser terrestri. Questo viewer apre i progetti scritti dalla suite.</translation>
    </message>
</context>
<context>
    <name>application start up</name>
    <message>
        <location filename="../app/main.cpp" line="+71"/>
        <source>Please specify your user name</source>
        <translation>Specificare il proprio nome utente</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
</context>
</TS>
