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
</TS>
