<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>application start up</name>
    <message>
        <source>Please specify your user name</source>
        <translation>Veuillez indiquer votre nom d'utilisateur</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nom d'utilisateur :</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ViewerSceneReader</name>
    <message>
        <source>The file is not an Tarvenix viewer version 1.0 or 2.0 file.</source>
        <translation>Le fichier n'est pas un fichier Tarvenix Viewer de version 1.0 ou 2.0.</translation>
    </message>
    <message>
        <source>Invalid number of entities</source>
        <translation>Nombre d'entités non valide</translation>
    </message>
    <message>
        <source>Unknown dimensioning type</source>
        <translation>Type de cotation inconnu</translation>
    </message>
    <message>
        <source>Entity declarations are not supported</source>
        <translation>Les déclarations d'entités ne sont pas prises en charge</translation>
    </message>
    <message>
        <source>Elements are nested too deeply</source>
        <translation>Les éléments sont imbriqués trop profondément</translation>
    </message>
    <message>
        <source>%1
Line %2, column %3</source>
        <translation>%1
Ligne %2, colonne %3</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectMessages</name>
    <message>
        <source>A project is already open. Close it before opening another one.
</source>
        <translation>Un projet est déjà ouvert. Fermez-le avant d'en ouvrir un autre.
</translation>
    </message>
    <message>
        <source>A lock file was found indicating that this directory is in use by another person or application.

</source>
        <translation>Un fichier de verrouillage indique que ce répertoire est utilisé par une autre personne ou application.

</translation>
    </message>
    <message>
        <source>  user: %1
</source>
        <translation>  utilisateur : %1
</translation>
    </message>
    <message>
        <source>  directory: %1
</source>
        <translation>  répertoire : %1
</translation>
    </message>
    <message>
        <source>  lockfile: %1
</source>
        <translation>  fichier de verrouillage : %1
</translation>
    </message>
    <message>
        <source>The lock file %1 could not be removed. The project stays open.
</source>
        <translation>Le fichier de verrouillage %1 n'a pas pu être supprimé. Le projet reste ouvert.
</translation>
    </message>
    <message>
        <source>An error occured reading the project file %1.

</source>
        <translation>Une erreur s'est produite lors de la lecture du fichier de projet %1.

</translation>
    </message>
    <message>
        <source>It was written with Tarvenix version: %1.%2.%3 using project format version: %4. </source>
        <translation>Il a été écrit avec la version %1.%2.%3 de Tarvenix au format de projet version %4. </translation>
    </message>
    <message>
        <source>If this version is newer than the currently used version, you need to upgrade your Tarvenix Software Suite.
</source>
        <translation>Si cette version est plus récente que celle que vous utilisez, vous devez mettre à jour votre Tarvenix Software Suite.
</translation>
    </message>
    <message>
        <source>The lock file %1 is no longer the one this application created; somebody else may have taken the project over. The project stays open.
</source>
        <translation>Le fichier de verrouillage %1 n'est plus celui que cette application a créé ; quelqu'un d'autre a peut-être repris le projet. Le projet reste ouvert.
</translation>
    </message>
    <message>
        <source>Warning: Project file with was written with an older Tarvenix version (%1.%2.%3) using project format version: %4. </source>
        <translation>Attention : le fichier de projet a été écrit avec une version plus ancienne de Tarvenix (%1.%2.%3) au format de projet version %4. </translation>
    </message>
    <message>
        <source>If you save this project again, it can be re-opened only with applications supporting the new project format.
</source>
        <translation>Si vous enregistrez à nouveau ce projet, il ne pourra être rouvert qu'avec des applications prenant en charge le nouveau format de projet.
</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Planar View</source>
        <translation>Vue plane</translation>
    </message>
    <message>
        <source>Spherical View</source>
        <translation>Vue sphérique</translation>
    </message>
    <message>
        <source>Pointcloud View</source>
        <translation>Vue nuage de points</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ReferencePointsTableModel</name>
    <message>
        <source>Sphere</source>
        <translation>Sphère</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
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
        <translation>Rayon [m]</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::DeleteLockFileDialog</name>
    <message>
        <source>Could Not Open Project Directory</source>
        <translation>Impossible d'ouvrir le répertoire du projet</translation>
    </message>
    <message>
        <source>Delete Lock File</source>
        <translation>Supprimer le fichier de verrouillage</translation>
    </message>
    <message>
        <source>Delete the lock file only when nobody else is working on this project. Changes of two people working on it at the same time would be lost.

Delete the lock file?</source>
        <translation>Ne supprimez le fichier de verrouillage que si personne d'autre ne travaille sur ce projet. Les modifications de deux personnes travaillant dessus en même temps seraient perdues.

Supprimer le fichier de verrouillage ?</translation>
    </message>
</context>
</TS>
