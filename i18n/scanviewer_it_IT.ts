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
</TS>
