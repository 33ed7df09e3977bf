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
</TS>
