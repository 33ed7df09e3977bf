<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>application start up</name>
    <message>
        <source>Please specify your user name</source>
        <translation>Indique su nombre de usuario</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
</context>
</TS>
