<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>TVX::CORE::BasicMainWindow</name>
    <message>
        <location filename="../libs/core/src/mainwindow/basicmainwindow.cpp" line="+285"/>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lens</source>
        <translation>Loupe</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Point Information</source>
        <translation>Informations sur le point</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Report</source>
        <translation>Journal</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save Project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pick 3D Coordinates</source>
        <translation>Relever des coordonnées 3D</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear Point List</source>
        <translation>Vider la liste des points</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear Picked Points from View</source>
        <translation>Retirer les points relevés de la vue</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Edit Elements</source>
        <translation>Modifier les éléments</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom All</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cascade Windows</source>
        <translation>Fenêtres en cascade</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cascade all Mdi Windows</source>
        <translation>Disposer toutes les fenêtres MDI en cascade</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tile Windows</source>
        <translation>Fenêtres en mosaïque</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tile all Mdi Windows</source>
        <translation>Disposer toutes les fenêtres MDI en mosaïque</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close All Windows</source>
        <translation>Fermer toutes les fenêtres</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Close all Mdi Windows</source>
        <translation>Fermer toutes les fenêtres MDI</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Add Polygon</source>
        <translation>Ajouter un polygone</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Add Rectangle</source>
        <translation>Ajouter un rectangle</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add Ellipse</source>
        <translation>Ajouter une ellipse</translation>
    </message>
    <message>
        <location line="-232"/>
        <location line="+233"/>
        <source>Add Text</source>
        <translation>Ajouter un texte</translation>
    </message>
    <message>
        <location line="-233"/>
        <source>Text:</source>
        <translation>Texte :</translation>
    </message>
    <message>
        <location line="+244"/>
        <source>3D Distance</source>
        <translation>Distance 3D</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance in XY</source>
        <translation>Distance en XY</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delta Z</source>
        <translation>Delta Z</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Detailed Distance Information</source>
        <translation>Informations détaillées sur la distance</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Undo Clear Point List</source>
        <translation>Annuler le vidage de la liste des points</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>File Operations</source>
        <translation>Opérations sur les fichiers</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom Operations</source>
        <translation>Opérations de zoom</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Drawing Tools</source>
        <translation>Outils de dessin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Measurement Tools</source>
        <translation>Outils de mesure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Point-based Operations</source>
        <translation>Opérations sur les points</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Recently Opened Files</source>
        <translation>Fichiers récemment ouverts</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Toolbars</source>
        <translation>Barres d&apos;outils</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Windows</source>
        <translation>Fe&amp;nêtres</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <location line="+71"/>
        <location line="+125"/>
        <location line="+432"/>
        <source>Read-only project</source>
        <translation>Projet en lecture seule</translation>
    </message>
    <message>
        <location line="-556"/>
        <location line="+125"/>
        <location line="+432"/>
        <source>Changes could not be saved, because the project was opened in read-only mode.</source>
        <translation>Les modifications n&apos;ont pas pu être enregistrées, car le projet a été ouvert en lecture seule.</translation>
    </message>
    <message>
        <location line="-553"/>
        <source>Save Changes?</source>
        <translation>Enregistrer les modifications ?</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Changes where made to one or more views. Should they be stored permanently?</source>
        <translation>Des modifications ont été apportées à une ou plusieurs vues. Faut-il les enregistrer définitivement ?</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+111"/>
        <source>File IO Error</source>
        <translation>Erreur d&apos;E/S de fichier</translation>
    </message>
    <message>
        <location line="-111"/>
        <source>An error occurred during saving the changes permanently. Try again?</source>
        <translation>Une erreur s&apos;est produite lors de l&apos;enregistrement définitif des modifications. Réessayer ?</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Select Project File</source>
        <translation>Sélectionner le fichier de projet</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tarvenix Project File (*.tvxprj)</source>
        <translation>Fichier de projet Tarvenix (*.tvxprj)</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+43"/>
        <location line="+6"/>
        <source>Could Not Open Project Directory</source>
        <translation>Impossible d&apos;ouvrir le répertoire du projet</translation>
    </message>
    <message>
        <location line="-48"/>
        <source>The project directory %1 does not exist.</source>
        <translation>Le répertoire du projet %1 n&apos;existe pas.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Warning: Old Project File Version</source>
        <translation>Avertissement : ancienne version du fichier de projet</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Project %1 opened%2.</source>
        <translation>Projet %1 ouvert%2.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> read-only</source>
        <translation> en lecture seule</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Scan not readable: %1</source>
        <translation>Scan illisible : %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Scans Could Not Be Read</source>
        <translation>Des scans n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The following scans of the project could not be read and are not shown:

%1</source>
        <translation>Les scans suivants du projet n&apos;ont pas pu être lus et ne sont pas affichés :

%1</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The lock file %1 could not be deleted.</source>
        <translation>Le fichier de verrouillage %1 n&apos;a pas pu être supprimé.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Lock file %1 deleted by the user.</source>
        <translation>Fichier de verrouillage %1 supprimé par l&apos;utilisateur.</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Project %1 saved.</source>
        <translation>Projet %1 enregistré.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Could Not Close Project</source>
        <translation>Impossible de fermer le projet</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Tarvenix Viewer</source>
        <translation>Tarvenix Viewer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tarvenix Viewer: %1[*]</source>
        <translation>Tarvenix Viewer : %1[*]</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+21"/>
        <location line="+8"/>
        <source>Add Scans</source>
        <translation>Ajouter des scans</translation>
    </message>
    <message>
        <location line="-28"/>
        <source>Scans (*.tvx %1);;Scan Files (*.tvx);;Scans of Other Scanners (%1)</source>
        <translation>Scans (*.tvx %1);;Fichiers de scan (*.tvx);;Scans d&apos;autres scanners (%1)</translation>
    </message>
    <message>
        <location line="+231"/>
        <source>The scan %1 cannot be read.</source>
        <translation>Le scan %1 ne peut pas être lu.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Spherical View: </source>
        <translation>Vue sphérique : </translation>
    </message>
    <message>
        <location line="+43"/>
        <source>The points of scan %1 cannot be read: %2</source>
        <translation>Les points du scan %1 ne peuvent pas être lus : %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Pointcloud View: </source>
        <translation>Vue nuage de points : </translation>
    </message>
    <message>
        <location line="-271"/>
        <source>Scan %1 added.</source>
        <translation>Scan %1 ajouté.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>These scans could not be added:

%1</source>
        <translation>Ces scans n&apos;ont pas pu être ajoutés :

%1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Importing %1 ...</source>
        <translation>Importation de %1 ...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Import of %1 cancelled; nothing was added.</source>
        <translation>Importation de %1 annulée ; rien n&apos;a été ajouté.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Scans imported from %1 into the folder %2: %3.</source>
        <translation>Scans importés de %1 dans le dossier %2 : %3.</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>Open Planar View</source>
        <translation>Ouvrir la vue plane</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Spherical View</source>
        <translation>Ouvrir la vue sphérique</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Pointcloud View</source>
        <translation>Ouvrir la vue nuage de points</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close Views of this Scan</source>
        <translation>Fermer les vues de ce scan</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close Views of all other Scans</source>
        <translation>Fermer les vues de tous les autres scans</translation>
    </message>
    <message>
        <location line="+39"/>
        <location line="+58"/>
        <source>The panorama %1 cannot be read.</source>
        <translation>Le panorama %1 ne peut pas être lu.</translation>
    </message>
    <message>
        <location line="-57"/>
        <location line="+59"/>
        <location line="+51"/>
        <source>Open a new View Failed</source>
        <translation>Échec de l&apos;ouverture d&apos;une nouvelle vue</translation>
    </message>
    <message>
        <location line="-109"/>
        <location line="+59"/>
        <location line="+51"/>
        <source>Tarvenix was unable to open a new scan view. Please close some other views and try again.</source>
        <translation>Tarvenix n&apos;a pas pu ouvrir une nouvelle vue du scan. Veuillez fermer d&apos;autres vues et réessayer.</translation>
    </message>
    <message>
        <location line="-105"/>
        <source>Planar View: </source>
        <translation>Vue plane : </translation>
    </message>
    <message>
        <location line="+182"/>
        <source>Error reading file</source>
        <translation>Erreur de lecture du fichier</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Parse error in file %1:

%2</source>
        <translation>Erreur d&apos;analyse dans le fichier %1 :

%2</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Internal Error</source>
        <translation>Erreur interne</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No scene information for scan found.</source>
        <translation>Aucune information de scène trouvée pour le scan.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Annotations saved to %1.</source>
        <translation>Annotations enregistrées dans %1.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Annotations not saved to %1: %2</source>
        <translation>Annotations non enregistrées dans %1 : %2</translation>
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
        <translation>Erreur d&apos;écriture des fichiers</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Could not write the following files:
</source>
        <translation>Les fichiers suivants n&apos;ont pas pu être écrits :
</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>Area selected in %1: columns %2 to %3, rows %4 to %5.</source>
        <translation>Zone sélectionnée dans %1 : colonnes %2 à %3, lignes %4 à %5.</translation>
    </message>
    <message>
        <location line="+121"/>
        <source>No point at column %1, row %2 of scan %3.</source>
        <translation>Aucun point à la colonne %1, ligne %2 du scan %3.</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Missing Information</source>
        <translation>Informations manquantes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>You need to specify two points in the same or in different scans before.</source>
        <translation>Vous devez d&apos;abord indiquer deux points dans le même scan ou dans des scans différents.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>DX: %1 m</source>
        <translation>DX : %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DY: %1 m</source>
        <translation>DY : %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DZ: %1 m</source>
        <translation>DZ : %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance 3D: %1 m</source>
        <translation>Distance 3D : %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance XY: %1 m</source>
        <translation>Distance XY : %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance Information</source>
        <translation>Informations sur la distance</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>c: %1,  r: %2</source>
        <comment>abbreviation for column and row</comment>
        <translation>c : %1,  l : %2</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>c: %1, r: %2,   x: %3, y: %4, z: %5, dist: %6</source>
        <translation>c : %1, l : %2,   x : %3, y : %4, z : %5, dist. : %6</translation>
    </message>
    <message>
        <location filename="../libs/core/src/mainwindow/planarviewcontent.cpp" line="+53"/>
        <source>distance: %1 m</source>
        <translation>distance : %1 m</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::BasicProject</name>
    <message>
        <location filename="../libs/core/src/project/basicproject.cpp" line="+296"/>
        <source>the file cannot be opened</source>
        <translation>le fichier ne peut pas être ouvert</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>the header cannot be read</source>
        <translation>l&apos;en-tête ne peut pas être lu</translation>
    </message>
    <message>
        <location line="+252"/>
        <source>the project is open read-only</source>
        <translation>le projet est ouvert en lecture seule</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the unreadable annotation file cannot be kept as %1</source>
        <translation>le fichier d&apos;annotations illisible ne peut pas être conservé sous %1</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>no project is open</source>
        <translation>aucun projet n&apos;est ouvert</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::DeleteLockFileDialog</name>
    <message>
        <location filename="../libs/core/src/mainwindow/deletelockfiledialog.cpp" line="+13"/>
        <source>Could Not Open Project Directory</source>
        <translation>Impossible d&apos;ouvrir le répertoire du projet</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <source>Delete Lock File</source>
        <translation>Supprimer le fichier de verrouillage</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delete the lock file only when nobody else is working on this project. Changes of two people working on it at the same time would be lost.

Delete the lock file?</source>
        <translation>Ne supprimez le fichier de verrouillage que si personne d&apos;autre ne travaille sur ce projet. Les modifications de deux personnes travaillant dessus en même temps seraient perdues.

Supprimer le fichier de verrouillage ?</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57PagedFile</name>
    <message>
        <location filename="../libs/core/src/fileio/e57pagedfile.cpp" line="+24"/>
        <source>page size %1 is not between %2 and %3</source>
        <translation>la taille de page %1 n&apos;est pas comprise entre %2 et %3</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>page %1 lies past the end of the file (%2 pages)</source>
        <translation>la page %1 se trouve après la fin du fichier (%2 pages)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>cannot read page %1: %2</source>
        <translation>impossible de lire la page %1 : %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>page %1: the checksum does not match</source>
        <translation>page %1 : la somme de contrôle ne correspond pas</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57Reader</name>
    <message>
        <location filename="../libs/core/src/fileio/e57reader.cpp" line="+111"/>
        <source>the image blob at byte %1 is not one</source>
        <translation>le bloc d&apos;image à l&apos;octet %1 n&apos;en est pas un</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the compressed vector at byte %1 lies past the end of the file</source>
        <translation>le vecteur compressé à l&apos;octet %1 se trouve après la fin du fichier</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>byte %1 holds no compressed vector section</source>
        <translation>l&apos;octet %1 ne contient aucune section de vecteur compressé</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the compressed vector at byte %1 claims %2 bytes, more than the file holds</source>
        <translation>le vecteur compressé à l&apos;octet %1 annonce %2 octets, plus que le fichier n&apos;en contient</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>the data of the compressed vector at byte %1 lie outside its section</source>
        <translation>les données du vecteur compressé à l&apos;octet %1 se trouvent hors de sa section</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>the packet at byte %1 runs past the end of its section</source>
        <translation>le paquet à l&apos;octet %1 dépasse la fin de sa section</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>byte %1 holds no packet</source>
        <translation>l&apos;octet %1 ne contient aucun paquet</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the packet at byte %1 holds %2 bytestreams for %3 fields</source>
        <translation>le paquet à l&apos;octet %1 contient %2 flux d&apos;octets pour %3 champs</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the packet at byte %1 is shorter than its header</source>
        <translation>le paquet à l&apos;octet %1 est plus court que son en-tête</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the bytestreams of the packet at byte %1 run past its end</source>
        <translation>les flux d&apos;octets du paquet à l&apos;octet %1 dépassent sa fin</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the field %1 runs ahead of the others by more than %2 bytes</source>
        <translation>le champ %1 devance les autres de plus de %2 octets</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>the compressed vector ends after %1 of %2 records</source>
        <translation>le vecteur compressé s&apos;arrête après %1 enregistrements sur %2</translation>
    </message>
    <message>
        <location line="+71"/>
        <source>record %1: the coordinates are not finite</source>
        <translation>enregistrement %1 : les coordonnées ne sont pas finies</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>&quot;%1&quot; is no number</source>
        <translation>« %1 » n&apos;est pas un nombre</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>&quot;%1&quot; is no integer</source>
        <translation>« %1 » n&apos;est pas un entier</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>%1 &quot;%2&quot; lies outside the file&apos;s data</source>
        <translation>%1 « %2 » se trouve hors des données du fichier</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>the quaternion has no length</source>
        <translation>le quaternion est de longueur nulle</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>%1 &quot;%2&quot; is no number</source>
        <translation>%1 « %2 » n&apos;est pas un nombre</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>minimum %1 lies above maximum %2</source>
        <translation>le minimum %1 dépasse le maximum %2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>a point field of type &quot;%1&quot;</source>
        <translation>un champ de points de type « %1 »</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Scan %1</source>
        <translation>Scan %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>no compressed vector of points</source>
        <translation>aucun vecteur compressé de points</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>no record count</source>
        <translation>aucun nombre d&apos;enregistrements</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>only the bit-pack codec is supported</source>
        <translation>seul le codec bit-pack est pris en charge</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>no prototype</source>
        <translation>aucun prototype</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the field %1 comes twice</source>
        <translation>le champ %1 apparaît deux fois</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>the points have neither cartesian nor spherical coordinates</source>
        <translation>les points n&apos;ont ni coordonnées cartésiennes ni sphériques</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>a row index without a column index, or the other way round</source>
        <translation>un indice de ligne sans indice de colonne, ou l&apos;inverse</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>%1 %2 makes no grid</source>
        <translation>%1 %2 ne forme pas de grille</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>a grid of %1 × %2 is too large</source>
        <translation>une grille de %1 × %2 est trop grande</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>an image of %1 bytes</source>
        <translation>une image de %1 octets</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>too short for an E57 file</source>
        <translation>trop court pour un fichier E57</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not an E57 file</source>
        <translation>pas un fichier E57</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>E57 version %1 is not supported</source>
        <translation>la version E57 %1 n&apos;est pas prise en charge</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the file is %1 bytes long, its header says %2</source>
        <translation>le fichier fait %1 octets, son en-tête indique %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the XML section (%1 bytes at byte %2) does not fit the file</source>
        <translation>la section XML (%1 octets à l&apos;octet %2) ne tient pas dans le fichier</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>XML section, %1</source>
        <translation>section XML, %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>no scan in the file</source>
        <translation>aucun scan dans le fichier</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57XmlNode</name>
    <message>
        <location filename="../libs/core/src/fileio/e57xmlnode.cpp" line="+19"/>
        <source>line %1: the XML is too large or too deep</source>
        <translation>ligne %1 : le XML est trop grand ou trop imbriqué</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeModel</name>
    <message>
        <location filename="../libs/core/src/project/filetreemodel.cpp" line="+246"/>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Planar View</source>
        <translation>Vue plane</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Spherical View</source>
        <translation>Vue sphérique</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pointcloud View</source>
        <translation>Vue nuage de points</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeView</name>
    <message>
        <location filename="../libs/core/src/mainwindow/filetreeview.cpp" line="+85"/>
        <location line="+62"/>
        <source>Delete Items</source>
        <translation>Supprimer les éléments</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Add Scans</source>
        <translation>Ajouter des scans</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add Folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rename Folder</source>
        <translation>Renommer le dossier</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Expand Folder</source>
        <translation>Développer le dossier</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Collapse Folder</source>
        <translation>Réduire le dossier</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Planar View</source>
        <translation>Ouvrir la vue plane</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Spherical View</source>
        <translation>Ouvrir la vue sphérique</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Pointcloud View</source>
        <translation>Ouvrir la vue nuage de points</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close Views of this Scan</source>
        <translation>Fermer les vues de ce scan</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close Views of all other Scans</source>
        <translation>Fermer les vues de tous les autres scans</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Delete the selected items from the project? The scan files stay on disk.</source>
        <translation>Supprimer du projet les éléments sélectionnés ? Les fichiers de scan restent sur le disque.</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::LogTableModel</name>
    <message>
        <location filename="../libs/core/src/mainwindow/logtablemodel.cpp" line="+46"/>
        <source>Type</source>
        <comment>Type of Log Message (Warning, Error, ...</comment>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::MDIPointcloudViewSubWindow</name>
    <message>
        <location filename="../libs/core/src/mainwindow/mdipointcloudviewsubwindow.cpp" line="+27"/>
        <source>Reset up-vector</source>
        <translation>Réinitialiser le vecteur vertical</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Background Color</source>
        <translation>Couleur d&apos;arrière-plan</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointInfoTableModel</name>
    <message>
        <location filename="../libs/core/src/mainwindow/pointinfotablemodel.cpp" line="+118"/>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refl.</source>
        <translation>Réfl.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Filename</source>
        <translation>Nom de fichier</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointInfoTableView</name>
    <message>
        <location filename="../libs/core/src/mainwindow/pointinfotableview.cpp" line="+29"/>
        <source>Specify z-Coordinate</source>
        <translation>Définir la coordonnée z</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>Save Entries to File</source>
        <translation>Enregistrer les entrées dans un fichier</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset z-Coordinate to 0.0</source>
        <translation>Remettre la coordonnée z à 0.0</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set Value of z-Coordinate</source>
        <translation>Définir la valeur de la coordonnée z</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointcloudViewGLWidget</name>
    <message>
        <location filename="../libs/core/src/glviews/pointcloudviewglwidget.cpp" line="+303"/>
        <source>Background Color</source>
        <translation>Couleur d&apos;arrière-plan</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Scan Colours</source>
        <translation>Couleurs du scan</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Intensity</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Dark Grey</source>
        <translation>Gris foncé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Yellow</source>
        <translation>Jaune</translation>
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
        <translation>Blanc</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectImport</name>
    <message>
        <location filename="../libs/core/src/project/projectimport.cpp" line="+70"/>
        <source>%1: only PTX and E57 files can be imported</source>
        <translation>%1 : seuls les fichiers PTX et E57 peuvent être importés</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>no project is open for writing</source>
        <translation>aucun projet n&apos;est ouvert en écriture</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+89"/>
        <source>cannot create %1</source>
        <translation>impossible de créer %1</translation>
    </message>
    <message>
        <location line="-56"/>
        <source>%1: not enough memory</source>
        <translation>%1 : mémoire insuffisante</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>%1: the written scan cannot be read back: %2</source>
        <translation>%1 : le scan écrit ne peut pas être relu : %2</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>%1 cannot be written</source>
        <translation>%1 ne peut pas être écrit</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectMessages</name>
    <message>
        <location filename="../libs/core/src/project/projectmessages.cpp" line="+9"/>
        <source>A project is already open. Close it before opening another one.
</source>
        <translation>Un projet est déjà ouvert. Fermez-le avant d&apos;en ouvrir un autre.
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>A lock file was found indicating that this directory is in use by another person or application.

</source>
        <translation>Un fichier de verrouillage indique que ce répertoire est utilisé par une autre personne ou application.

</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>  user: %1
</source>
        <translation>  utilisateur : %1
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>  directory: %1
</source>
        <translation>  répertoire : %1
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>  lockfile: %1
</source>
        <translation>  fichier de verrouillage : %1
</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The lock file %1 could not be removed. The project stays open.
</source>
        <translation>Le fichier de verrouillage %1 n&apos;a pas pu être supprimé. Le projet reste ouvert.
</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>An error occured reading the project file %1.

</source>
        <translation>Une erreur s&apos;est produite lors de la lecture du fichier de projet %1.

</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>It was written with Tarvenix version: %1.%2.%3 using project format version: %4. </source>
        <translation>Il a été écrit avec la version %1.%2.%3 de Tarvenix au format de projet version %4. </translation>
    </message>
    <message>
        <location line="+5"/>
        <source>If this version is newer than the currently used version, you need to upgrade your Tarvenix Software Suite.
</source>
        <translation>Si cette version est plus récente que celle que vous utilisez, vous devez mettre à jour votre Tarvenix Software Suite.
</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The lock file %1 is no longer the one this application created; somebody else may have taken the project over. The project stays open.
</source>
        <translation>Le fichier de verrouillage %1 n&apos;est plus celui que cette application a créé ; quelqu&apos;un d&apos;autre a peut-être repris le projet. Le projet reste ouvert.
</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Warning: Project file with was written with an older Tarvenix version (%1.%2.%3) using project format version: %4. </source>
        <translation>Attention : le fichier de projet a été écrit avec une version plus ancienne de Tarvenix (%1.%2.%3) au format de projet version %4. </translation>
    </message>
    <message>
        <location line="+6"/>
        <source>If you save this project again, it can be re-opened only with applications supporting the new project format.
</source>
        <translation>Si vous enregistrez à nouveau ce projet, il ne pourra être rouvert qu&apos;avec des applications prenant en charge le nouveau format de projet.
</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>
Cause: %1
</source>
        <translation>
Cause : %1
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Changes could not be saved, because the project was opened in read-only mode.</source>
        <translation>Les modifications n&apos;ont pas pu être enregistrées, car le projet a été ouvert en lecture seule.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The project file %1 could not be written.
</source>
        <translation>Le fichier de projet %1 n&apos;a pas pu être écrit.
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The project file %1 was missing; it was restored from the copy that the last save left behind.
</source>
        <translation>Le fichier de projet %1 était absent ; il a été restauré à partir de la copie laissée par le dernier enregistrement.
</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PtxReader</name>
    <message>
        <location filename="../libs/core/src/fileio/ptxreader.cpp" line="+37"/>
        <source>cannot seek to byte %1</source>
        <translation>impossible d&apos;aller à l&apos;octet %1</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>line longer than %1 bytes</source>
        <translation>ligne de plus de %1 octets</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>cannot read: %1</source>
        <translation>lecture impossible : %1</translation>
    </message>
    <message>
        <location line="+106"/>
        <source>the file ends inside a scan</source>
        <translation>le fichier se termine au milieu d&apos;un scan</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>expected %1 numbers</source>
        <translation>%1 nombres attendus</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+32"/>
        <source>a number that is not finite</source>
        <translation>un nombre qui n&apos;est pas fini</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>the file ends inside a scan header</source>
        <translation>le fichier se termine au milieu de l&apos;en-tête d&apos;un scan</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>a header line of %1 numbers expected</source>
        <translation>une ligne d&apos;en-tête de %1 nombres attendue</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 %2 is not between 1 and %3</source>
        <translation>%1 %2 n&apos;est pas compris entre 1 et %3</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Scan %1</source>
        <translation>Scan %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>column count</source>
        <translation>nombre de colonnes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>row count</source>
        <translation>nombre de lignes</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 × %2 points are more than %3</source>
        <translation>%1 × %2 points, c&apos;est plus que %3</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>the file ends at line %1, inside scan %2 of %3 × %4 points</source>
        <translation>le fichier se termine à la ligne %1, au milieu du scan %2 de %3 × %4 points</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>expected 4 or 7 numbers</source>
        <translation>4 ou 7 nombres attendus</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>no scan in the file</source>
        <translation>aucun scan dans le fichier</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ReferencePointsTableModel</name>
    <message>
        <location filename="../libs/core/src/project/referencepointstablemodel.cpp" line="+42"/>
        <source>Sphere</source>
        <translation>Sphère</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Type</source>
        <translation>Type</translation>
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
        <translation>Rayon [m]</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ScanImporter</name>
    <message>
        <location filename="../libs/core/src/fileio/scanimporter.cpp" line="+117"/>
        <source>a point at column %1, row %2 lies outside the grid of %3 × %4</source>
        <translation>un point à la colonne %1, ligne %2 se trouve hors de la grille de %3 × %4</translation>
    </message>
    <message>
        <location line="+94"/>
        <source>a grid of %1 × %2 for only %3 points</source>
        <translation>une grille de %1 × %2 pour seulement %3 points</translation>
    </message>
    <message>
        <location line="+111"/>
        <source>no point with a return to grid</source>
        <translation>aucun point avec retour à mettre en grille</translation>
    </message>
    <message>
        <location line="+79"/>
        <source>a step of %1° makes more than %2 cells; choose a larger step</source>
        <translation>un pas de %1° donne plus de %2 cellules ; choisissez un pas plus grand</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>the point of cell (%1, %2) is not finite</source>
        <translation>le point de la cellule (%1, %2) n&apos;est pas fini</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the point of cell (%1, %2) lies %3 m away, beyond the %4 m that scan files store</source>
        <translation>le point de la cellule (%1, %2) est à %3 m, au-delà des %4 m que stockent les fichiers de scan</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>the grid of %1 × %2 is too large to be held whole; at most %3 cells</source>
        <translation>la grille de %1 × %2 est trop grande pour être gardée entière ; au plus %3 cellules</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>the points of column %1 are not stored together</source>
        <translation>les points de la colonne %1 ne sont pas stockés ensemble</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>its panorama image cannot be decoded</source>
        <translation>son image panoramique ne peut pas être décodée</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>no memory for a panorama of %1 × %2 pixels</source>
        <translation>pas de mémoire pour un panorama de %1 × %2 pixels</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::SphericalViewGLWidget</name>
    <message>
        <location filename="../libs/core/src/glviews/sphericalviewglwidget.cpp" line="+220"/>
        <source>Error Initializing Display Driver</source>
        <translation>Erreur lors de l&apos;initialisation du pilote graphique</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenGL driver could not be initialized without errors.</source>
        <translation>Le pilote OpenGL n&apos;a pas pu être initialisé sans erreur.</translation>
    </message>
    <message>
        <location line="+232"/>
        <source>%1
distance: %2 m</source>
        <translation>%1
distance : %2 m</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ViewerSceneReader</name>
    <message>
        <location filename="../libs/core/src/annotations/viewerscenereader.cpp" line="+29"/>
        <source>The file is not an Tarvenix viewer version 1.0 or 2.0 file.</source>
        <translation>Le fichier n&apos;est pas un fichier Tarvenix Viewer de version 1.0 ou 2.0.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Invalid number of entities</source>
        <translation>Nombre d&apos;entités non valide</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unknown dimensioning type</source>
        <translation>Type de cotation inconnu</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Entity declarations are not supported</source>
        <translation>Les déclarations d&apos;entités ne sont pas prises en charge</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Elements are nested too deeply</source>
        <translation>Les éléments sont imbriqués trop profondément</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1
Line %2, column %3</source>
        <translation>%1
Ligne %2, colonne %3</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::PreferencesWidget</name>
    <message>
        <location filename="../app/preferenceswidget.cpp" line="+67"/>
        <source>Edit Preferences</source>
        <translation>Modifier les préférences</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Reset:</source>
        <translation>Réinitialisation :</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset Application Settings to Defaults</source>
        <translation>Rétablir les paramètres par défaut de l&apos;application</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Language Selection:</source>
        <translation>Choix de la langue :</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use System Default</source>
        <translation>Utiliser la langue du système</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Use Other than System Default</source>
        <translation>Utiliser une autre langue que celle du système</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Italian</source>
        <translation>Italien</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Application Parameter:</source>
        <translation>Paramètres de l&apos;application :</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show Station Marks</source>
        <translation>Afficher les marques de station</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Same as Active Window</source>
        <translation>Comme la fenêtre active</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Planar View</source>
        <translation>Vue plane</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Spherical View</source>
        <translation>Vue sphérique</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PointCloud View</source>
        <translation>Vue nuage de points</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>minimal Distance:</source>
        <translation>Distance minimale :</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>maximal Distance:</source>
        <translation>Distance maximale :</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>View to be opened by default:</source>
        <translation>Vue ouverte par défaut :</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Reset Application Settings</source>
        <translation>Réinitialiser les paramètres de l&apos;application</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All application settings are reset to their defaults. Please restart all Tarvnix applications before you continue.</source>
        <translation>Tous les paramètres de l&apos;application ont été rétablis à leurs valeurs par défaut. Veuillez redémarrer toutes les applications Tarvnix avant de continuer.</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::ShowProjectCoordSysDialog</name>
    <message>
        <location filename="../app/showprojectcoordsysdialog.cpp" line="+53"/>
        <source>The project file holds no valid number here.</source>
        <translation>Le fichier de projet ne contient pas de nombre valide ici.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Project Coordinate Systems</source>
        <translation>Systèmes de coordonnées du projet</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>default</source>
        <translation>par défaut</translation>
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
        <translation>%1 (m) :</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Coordinate system:</source>
        <translation>Système de coordonnées :</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::StartupHelpWidget</name>
    <message>
        <location filename="../app/startuphelpwidget.cpp" line="+20"/>
        <source>Quick Introduction</source>
        <translation>Introduction rapide</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Show this help on startup</source>
        <translation>Afficher cette aide au démarrage</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>&lt;h2&gt;Welcome to the Scan Viewer&lt;/h2&gt;&lt;p&gt;The viewer shows projects of terrestrial laser scans: you look at the scans, pick 3D coordinates, measure distances and draw annotations.&lt;/p&gt;&lt;h3&gt;Projects&lt;/h3&gt;&lt;p&gt;A project is a folder that holds a project file and a folder named &lt;i&gt;scans&lt;/i&gt; with the scan files and their panorama images. Open it with &lt;b&gt;File &amp;gt; Open Project&lt;/b&gt;; the last ten projects are listed under &lt;b&gt;File &amp;gt; Recently Opened Files&lt;/b&gt;. While you work on a project, others can only open it read-only.&lt;/p&gt;&lt;h3&gt;The project tree&lt;/h3&gt;&lt;p&gt;The &lt;b&gt;Project&lt;/b&gt; dock lists the scans in their folders. Double click a scan to open it in the default view. The context menu (right mouse button) opens the planar, spherical or point cloud view of the selected scans, closes their views, and adds scans and folders, renames folders or deletes items. Drag items to arrange them in folders; the check box of a scan switches it off and closes its views.&lt;/p&gt;&lt;h3&gt;The three views&lt;/h3&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Planar view&lt;/b&gt;: the panorama image of the scan, one pixel per measured cell.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Spherical view&lt;/b&gt;: the panorama around the scanner&apos;s position, as if you stood there; drag to look around.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Point cloud view&lt;/b&gt;: the measured points in 3D; drag to turn the cloud.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Any number of views can be open at once; &lt;b&gt;Windows&lt;/b&gt; arranges or closes them. The zoom tools and &lt;b&gt;Zoom All&lt;/b&gt; change the magnification; hold the middle mouse button, or Ctrl and the left button, to pan.&lt;/p&gt;&lt;h3&gt;Picking coordinates&lt;/h3&gt;&lt;p&gt;With &lt;b&gt;Pick 3D Coordinates&lt;/b&gt; on, click into a view: the point&apos;s column, row, coordinates, reflectance and distance are added to the &lt;b&gt;Point Information&lt;/b&gt; dock. &lt;b&gt;Clear Point List&lt;/b&gt; empties the list; &lt;b&gt;Clear Picked Points from View&lt;/b&gt; removes the marks.&lt;/p&gt;&lt;h3&gt;Measuring&lt;/h3&gt;&lt;p&gt;The measuring tools &lt;b&gt;3D Distance&lt;/b&gt;, &lt;b&gt;Distance in XY&lt;/b&gt; and &lt;b&gt;Delta Z&lt;/b&gt; place a dimensioning between two points you click. &lt;b&gt;Detailed Distance Information&lt;/b&gt; shows all three distances between the last two picked points.&lt;/p&gt;&lt;h3&gt;Annotations&lt;/h3&gt;&lt;p&gt;Draw polygons, rectangles, ellipses and texts with the drawing tools; a polygon is closed with a double click. &lt;b&gt;Edit Elements&lt;/b&gt; lets you move and reshape them. Annotations are kept per scan and saved with the project by &lt;b&gt;File &amp;gt; Save Project&lt;/b&gt;.&lt;/p&gt;&lt;h3&gt;The lens&lt;/h3&gt;&lt;p&gt;Hold Shift while you move the mouse over a planar view: the &lt;b&gt;Lens&lt;/b&gt; dock magnifies the cells around the cursor and shows the coordinates of the cell in its centre.&lt;/p&gt;&lt;h3&gt;Station marks&lt;/h3&gt;&lt;p&gt;The positions of the other scans nearby are shown as station marks. Double click one to open that scan.&lt;/p&gt;&lt;h3&gt;Preferences&lt;/h3&gt;&lt;p&gt;&lt;b&gt;Preferences...&lt;/b&gt; in the help menu sets the language, whether station marks are shown and within which distances, and which view a double click in the project tree opens. &lt;b&gt;Project Coordinates...&lt;/b&gt; shows the coordinate systems of the project.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Bienvenue dans le Scan Viewer&lt;/h2&gt;&lt;p&gt;Le visualiseur affiche des projets de scans laser terrestres : vous regardez les scans, relevez des coordonnées 3D, mesurez des distances et dessinez des annotations.&lt;/p&gt;&lt;h3&gt;Projets&lt;/h3&gt;&lt;p&gt;Un projet est un dossier qui contient un fichier de projet et un dossier nommé &lt;i&gt;scans&lt;/i&gt; avec les fichiers de scan et leurs images panoramiques. Ouvrez-le avec &lt;b&gt;Fichier &amp;gt; Ouvrir un projet&lt;/b&gt; ; les dix derniers projets figurent sous &lt;b&gt;Fichier &amp;gt; Fichiers récemment ouverts&lt;/b&gt;. Pendant que vous travaillez sur un projet, les autres ne peuvent l&apos;ouvrir qu&apos;en lecture seule.&lt;/p&gt;&lt;h3&gt;L&apos;arborescence du projet&lt;/h3&gt;&lt;p&gt;Le panneau &lt;b&gt;Projet&lt;/b&gt; liste les scans dans leurs dossiers. Double-cliquez sur un scan pour l&apos;ouvrir dans la vue par défaut. Le menu contextuel (bouton droit de la souris) ouvre la vue plane, sphérique ou nuage de points des scans sélectionnés, ferme leurs vues, ajoute des scans et des dossiers, renomme des dossiers ou supprime des éléments. Faites glisser les éléments pour les ranger dans des dossiers ; la case à cocher d&apos;un scan le désactive et ferme ses vues.&lt;/p&gt;&lt;h3&gt;Les trois vues&lt;/h3&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Vue plane&lt;/b&gt; : l&apos;image panoramique du scan, un pixel par cellule mesurée.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Vue sphérique&lt;/b&gt; : le panorama autour de la position du scanner, comme si vous vous y trouviez ; faites glisser pour regarder autour de vous.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Vue nuage de points&lt;/b&gt; : les points mesurés en 3D ; faites glisser pour faire tourner le nuage.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Autant de vues que vous le souhaitez peuvent être ouvertes à la fois ; &lt;b&gt;Fenêtres&lt;/b&gt; les dispose ou les ferme. Les outils de zoom et &lt;b&gt;Tout afficher&lt;/b&gt; modifient le grossissement ; maintenez le bouton central de la souris, ou Ctrl et le bouton gauche, pour déplacer la vue.&lt;/p&gt;&lt;h3&gt;Relever des coordonnées&lt;/h3&gt;&lt;p&gt;Lorsque &lt;b&gt;Relever des coordonnées 3D&lt;/b&gt; est actif, cliquez dans une vue : la colonne, la ligne, les coordonnées, la réflectance et la distance du point sont ajoutées au panneau &lt;b&gt;Informations sur le point&lt;/b&gt;. &lt;b&gt;Vider la liste des points&lt;/b&gt; vide la liste ; &lt;b&gt;Retirer les points relevés de la vue&lt;/b&gt; supprime les marques.&lt;/p&gt;&lt;h3&gt;Mesurer&lt;/h3&gt;&lt;p&gt;Les outils de mesure &lt;b&gt;Distance 3D&lt;/b&gt;, &lt;b&gt;Distance en XY&lt;/b&gt; et &lt;b&gt;Delta Z&lt;/b&gt; placent une cotation entre deux points sur lesquels vous cliquez. &lt;b&gt;Informations détaillées sur la distance&lt;/b&gt; affiche les trois distances entre les deux derniers points relevés.&lt;/p&gt;&lt;h3&gt;Annotations&lt;/h3&gt;&lt;p&gt;Dessinez des polygones, des rectangles, des ellipses et des textes avec les outils de dessin ; un polygone se ferme par un double-clic. &lt;b&gt;Modifier les éléments&lt;/b&gt; permet de les déplacer et de les remodeler. Les annotations sont conservées par scan et enregistrées avec le projet par &lt;b&gt;Fichier &amp;gt; Enregistrer le projet&lt;/b&gt;.&lt;/p&gt;&lt;h3&gt;La loupe&lt;/h3&gt;&lt;p&gt;Maintenez la touche Maj enfoncée pendant que vous déplacez la souris sur une vue plane : le panneau &lt;b&gt;Loupe&lt;/b&gt; agrandit les cellules autour du curseur et affiche les coordonnées de la cellule centrale.&lt;/p&gt;&lt;h3&gt;Marques de station&lt;/h3&gt;&lt;p&gt;Les positions des autres scans proches sont affichées sous forme de marques de station. Double-cliquez sur une marque pour ouvrir ce scan.&lt;/p&gt;&lt;h3&gt;Préférences&lt;/h3&gt;&lt;p&gt;&lt;b&gt;Préférences...&lt;/b&gt; dans le menu Aide définit la langue, si les marques de station sont affichées et dans quelles distances, et quelle vue un double-clic dans l&apos;arborescence du projet ouvre. &lt;b&gt;Coordonnées du projet...&lt;/b&gt; affiche les systèmes de coordonnées du projet.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::ViewerMainWindow</name>
    <message>
        <location filename="../app/viewermainwindow.cpp" line="+34"/>
        <source>Preferences...</source>
        <translation>Préférences...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Project Coordinates...</source>
        <translation>Coordonnées du projet...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show Quick Introduction</source>
        <translation>Afficher l&apos;introduction rapide</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+63"/>
        <source>About Tarvenix Scan Viewer</source>
        <translation>À propos de Tarvenix Scan Viewer</translation>
    </message>
    <message>
        <location line="-62"/>
        <location line="+74"/>
        <source>More About Tarvenix</source>
        <translation>En savoir plus sur Tarvenix</translation>
    </message>
    <message>
        <location line="-72"/>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>&lt;h3&gt;Tarvenix Scan Viewer&lt;/h3&gt;&lt;p&gt;Version %1.%2.%3&lt;/p&gt;&lt;p&gt;Views projects of terrestrial laser scans: panoramas, spheres around each station and point clouds; picks coordinates, measures distances and keeps annotations beside each scan.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tarvenix Scan Viewer&lt;/h3&gt;&lt;p&gt;Version %1.%2.%3&lt;/p&gt;&lt;p&gt;Affiche des projets de scans laser terrestres : panoramas, sphères autour de chaque station et nuages de points ; relève des coordonnées, mesure des distances et conserve des annotations à côté de chaque scan.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The Tarvenix Software Suite registers, models and publishes terrestrial laser scans. This viewer opens the projects that the suite writes.</source>
        <translation>La Tarvenix Software Suite recale, modélise et publie des scans laser terrestres. Ce visualiseur ouvre les projets que la suite écrit.</translation>
    </message>
</context>
<context>
    <name>application start up</name>
    <message>
        <location filename="../app/main.cpp" line="+71"/>
        <source>Please specify your user name</source>
        <translation>Veuillez indiquer votre nom d&apos;utilisateur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name:</source>
        <translation>Nom d&apos;utilisateur :</translation>
    </message>
</context>
</TS>
