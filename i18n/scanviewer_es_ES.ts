<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>TVX::CORE::BasicMainWindow</name>
    <message>
        <location filename="../libs/core/src/mainwindow/basicmainwindow.cpp" line="+285"/>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lens</source>
        <translation>Lupa</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Point Information</source>
        <translation>Información del punto</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save Project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pick 3D Coordinates</source>
        <translation>Capturar coordenadas 3D</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear Point List</source>
        <translation>Vaciar lista de puntos</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear Picked Points from View</source>
        <translation>Quitar los puntos capturados de la vista</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Edit Elements</source>
        <translation>Editar elementos</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom All</source>
        <translation>Ver todo</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cascade Windows</source>
        <translation>Ventanas en cascada</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cascade all Mdi Windows</source>
        <translation>Organizar todas las ventanas MDI en cascada</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tile Windows</source>
        <translation>Ventanas en mosaico</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tile all Mdi Windows</source>
        <translation>Organizar todas las ventanas MDI en mosaico</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close All Windows</source>
        <translation>Cerrar todas las ventanas</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Close all Mdi Windows</source>
        <translation>Cerrar todas las ventanas MDI</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Add Polygon</source>
        <translation>Añadir polígono</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Add Rectangle</source>
        <translation>Añadir rectángulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add Ellipse</source>
        <translation>Añadir elipse</translation>
    </message>
    <message>
        <location line="-232"/>
        <location line="+233"/>
        <source>Add Text</source>
        <translation>Añadir texto</translation>
    </message>
    <message>
        <location line="-233"/>
        <source>Text:</source>
        <translation>Texto:</translation>
    </message>
    <message>
        <location line="+244"/>
        <source>3D Distance</source>
        <translation>Distancia 3D</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance in XY</source>
        <translation>Distancia en XY</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delta Z</source>
        <translation>Delta Z</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Detailed Distance Information</source>
        <translation>Información detallada de distancia</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Undo Clear Point List</source>
        <translation>Deshacer el vaciado de la lista de puntos</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>File Operations</source>
        <translation>Operaciones de archivo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zoom Operations</source>
        <translation>Operaciones de zoom</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Drawing Tools</source>
        <translation>Herramientas de dibujo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Measurement Tools</source>
        <translation>Herramientas de medición</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Point-based Operations</source>
        <translation>Operaciones con puntos</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Recently Opened Files</source>
        <translation>Archivos abiertos recientemente</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Toolbars</source>
        <translation>Barras de herramientas</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Windows</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Windows</source>
        <translation>&amp;Ventanas</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <location line="+71"/>
        <location line="+125"/>
        <location line="+432"/>
        <source>Read-only project</source>
        <translation>Proyecto de solo lectura</translation>
    </message>
    <message>
        <location line="-556"/>
        <location line="+125"/>
        <location line="+432"/>
        <source>Changes could not be saved, because the project was opened in read-only mode.</source>
        <translation>No se pudieron guardar los cambios porque el proyecto se abrió en modo de solo lectura.</translation>
    </message>
    <message>
        <location line="-553"/>
        <source>Save Changes?</source>
        <translation>¿Guardar los cambios?</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Changes where made to one or more views. Should they be stored permanently?</source>
        <translation>Se han realizado cambios en una o más vistas. ¿Deben guardarse de forma permanente?</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+111"/>
        <source>File IO Error</source>
        <translation>Error de E/S de archivo</translation>
    </message>
    <message>
        <location line="-111"/>
        <source>An error occurred during saving the changes permanently. Try again?</source>
        <translation>Se produjo un error al guardar los cambios de forma permanente. ¿Intentarlo de nuevo?</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Select Project File</source>
        <translation>Seleccionar archivo de proyecto</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tarvenix Project File (*.tvxprj)</source>
        <translation>Archivo de proyecto de Tarvenix (*.tvxprj)</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+43"/>
        <location line="+6"/>
        <source>Could Not Open Project Directory</source>
        <translation>No se pudo abrir el directorio del proyecto</translation>
    </message>
    <message>
        <location line="-48"/>
        <source>The project directory %1 does not exist.</source>
        <translation>El directorio del proyecto %1 no existe.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Warning: Old Project File Version</source>
        <translation>Advertencia: versión antigua del archivo de proyecto</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Project %1 opened%2.</source>
        <translation>Proyecto %1 abierto%2.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> read-only</source>
        <translation> en solo lectura</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Scan not readable: %1</source>
        <translation>Escaneo no legible: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Scans Could Not Be Read</source>
        <translation>No se pudieron leer los escaneos</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The following scans of the project could not be read and are not shown:

%1</source>
        <translation>Los siguientes escaneos del proyecto no se pudieron leer y no se muestran:

%1</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The lock file %1 could not be deleted.</source>
        <translation>No se pudo eliminar el archivo de bloqueo %1.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Lock file %1 deleted by the user.</source>
        <translation>Archivo de bloqueo %1 eliminado por el usuario.</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Project %1 saved.</source>
        <translation>Proyecto %1 guardado.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Could Not Close Project</source>
        <translation>No se pudo cerrar el proyecto</translation>
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
        <translation>Añadir escaneos</translation>
    </message>
    <message>
        <location line="-28"/>
        <source>Scans (*.tvx %1);;Scan Files (*.tvx);;Scans of Other Scanners (%1)</source>
        <translation>Escaneos (*.tvx %1);;Archivos de escaneo (*.tvx);;Escaneos de otros escáneres (%1)</translation>
    </message>
    <message>
        <location line="+231"/>
        <source>The scan %1 cannot be read.</source>
        <translation>No se puede leer el escaneo %1.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Spherical View: </source>
        <translation>Vista esférica: </translation>
    </message>
    <message>
        <location line="+43"/>
        <source>The points of scan %1 cannot be read: %2</source>
        <translation>No se pueden leer los puntos del escaneo %1: %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Pointcloud View: </source>
        <translation>Vista de nube de puntos: </translation>
    </message>
    <message>
        <location line="-271"/>
        <source>Scan %1 added.</source>
        <translation>Escaneo %1 añadido.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>These scans could not be added:

%1</source>
        <translation>No se pudieron añadir estos escaneos:

%1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Importing %1 ...</source>
        <translation>Importando %1 ...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Import of %1 cancelled; nothing was added.</source>
        <translation>Importación de %1 cancelada; no se ha añadido nada.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Scans imported from %1 into the folder %2: %3.</source>
        <translation>Escaneos importados de %1 en la carpeta %2: %3.</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>Open Planar View</source>
        <translation>Abrir vista plana</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Spherical View</source>
        <translation>Abrir vista esférica</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Pointcloud View</source>
        <translation>Abrir vista de nube de puntos</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close Views of this Scan</source>
        <translation>Cerrar las vistas de este escaneo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close Views of all other Scans</source>
        <translation>Cerrar las vistas de todos los demás escaneos</translation>
    </message>
    <message>
        <location line="+39"/>
        <location line="+58"/>
        <source>The panorama %1 cannot be read.</source>
        <translation>No se puede leer el panorama %1.</translation>
    </message>
    <message>
        <location line="-57"/>
        <location line="+59"/>
        <location line="+51"/>
        <source>Open a new View Failed</source>
        <translation>No se pudo abrir una nueva vista</translation>
    </message>
    <message>
        <location line="-109"/>
        <location line="+59"/>
        <location line="+51"/>
        <source>Tarvenix was unable to open a new scan view. Please close some other views and try again.</source>
        <translation>Tarvenix no pudo abrir una nueva vista del escaneo. Cierre algunas otras vistas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <location line="-105"/>
        <source>Planar View: </source>
        <translation>Vista plana: </translation>
    </message>
    <message>
        <location line="+182"/>
        <source>Error reading file</source>
        <translation>Error al leer el archivo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Parse error in file %1:

%2</source>
        <translation>Error de análisis en el archivo %1:

%2</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Internal Error</source>
        <translation>Error interno</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No scene information for scan found.</source>
        <translation>No se encontró información de escena para el escaneo.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Annotations saved to %1.</source>
        <translation>Anotaciones guardadas en %1.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Annotations not saved to %1: %2</source>
        <translation>Anotaciones no guardadas en %1: %2</translation>
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
        <translation>Error al escribir archivos</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Could not write the following files:
</source>
        <translation>No se pudieron escribir los siguientes archivos:
</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>Area selected in %1: columns %2 to %3, rows %4 to %5.</source>
        <translation>Área seleccionada en %1: columnas %2 a %3, filas %4 a %5.</translation>
    </message>
    <message>
        <location line="+121"/>
        <source>No point at column %1, row %2 of scan %3.</source>
        <translation>No hay ningún punto en la columna %1, fila %2 del escaneo %3.</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Missing Information</source>
        <translation>Falta información</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>You need to specify two points in the same or in different scans before.</source>
        <translation>Primero debe especificar dos puntos en el mismo escaneo o en escaneos distintos.</translation>
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
        <translation>Distancia 3D: %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance XY: %1 m</source>
        <translation>Distancia XY: %1 m</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance Information</source>
        <translation>Información de distancia</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>c: %1,  r: %2</source>
        <comment>abbreviation for column and row</comment>
        <translation>c: %1,  f: %2</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>c: %1, r: %2,   x: %3, y: %4, z: %5, dist: %6</source>
        <translation>c: %1, f: %2,   x: %3, y: %4, z: %5, dist.: %6</translation>
    </message>
    <message>
        <location filename="../libs/core/src/mainwindow/planarviewcontent.cpp" line="+53"/>
        <source>distance: %1 m</source>
        <translation>distancia: %1 m</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::BasicProject</name>
    <message>
        <location filename="../libs/core/src/project/basicproject.cpp" line="+296"/>
        <source>the file cannot be opened</source>
        <translation>el archivo no se puede abrir</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>the header cannot be read</source>
        <translation>la cabecera no se puede leer</translation>
    </message>
    <message>
        <location line="+252"/>
        <source>the project is open read-only</source>
        <translation>el proyecto está abierto en solo lectura</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the unreadable annotation file cannot be kept as %1</source>
        <translation>el archivo de anotaciones ilegible no se puede conservar como %1</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>no project is open</source>
        <translation>no hay ningún proyecto abierto</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::DeleteLockFileDialog</name>
    <message>
        <location filename="../libs/core/src/mainwindow/deletelockfiledialog.cpp" line="+13"/>
        <source>Could Not Open Project Directory</source>
        <translation>No se pudo abrir el directorio del proyecto</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <source>Delete Lock File</source>
        <translation>Eliminar archivo de bloqueo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delete the lock file only when nobody else is working on this project. Changes of two people working on it at the same time would be lost.

Delete the lock file?</source>
        <translation>Elimine el archivo de bloqueo solo si nadie más está trabajando en este proyecto. Los cambios de dos personas que trabajen en él a la vez se perderían.

¿Eliminar el archivo de bloqueo?</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57PagedFile</name>
    <message>
        <location filename="../libs/core/src/fileio/e57pagedfile.cpp" line="+24"/>
        <source>page size %1 is not between %2 and %3</source>
        <translation>el tamaño de página %1 no está entre %2 y %3</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>page %1 lies past the end of the file (%2 pages)</source>
        <translation>la página %1 está más allá del final del archivo (%2 páginas)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>cannot read page %1: %2</source>
        <translation>no se puede leer la página %1: %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>page %1: the checksum does not match</source>
        <translation>página %1: la suma de comprobación no coincide</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57Reader</name>
    <message>
        <location filename="../libs/core/src/fileio/e57reader.cpp" line="+111"/>
        <source>the image blob at byte %1 is not one</source>
        <translation>el bloque de imagen en el byte %1 no es válido</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the compressed vector at byte %1 lies past the end of the file</source>
        <translation>el vector comprimido en el byte %1 está más allá del final del archivo</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>byte %1 holds no compressed vector section</source>
        <translation>el byte %1 no contiene una sección de vector comprimido</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the compressed vector at byte %1 claims %2 bytes, more than the file holds</source>
        <translation>el vector comprimido en el byte %1 declara %2 bytes, más de los que contiene el archivo</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>the data of the compressed vector at byte %1 lie outside its section</source>
        <translation>los datos del vector comprimido en el byte %1 están fuera de su sección</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>the packet at byte %1 runs past the end of its section</source>
        <translation>el paquete en el byte %1 sobrepasa el final de su sección</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>byte %1 holds no packet</source>
        <translation>el byte %1 no contiene ningún paquete</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the packet at byte %1 holds %2 bytestreams for %3 fields</source>
        <translation>el paquete en el byte %1 contiene %2 flujos de bytes para %3 campos</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the packet at byte %1 is shorter than its header</source>
        <translation>el paquete en el byte %1 es más corto que su cabecera</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the bytestreams of the packet at byte %1 run past its end</source>
        <translation>los flujos de bytes del paquete en el byte %1 sobrepasan su final</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the field %1 runs ahead of the others by more than %2 bytes</source>
        <translation>el campo %1 se adelanta a los demás en más de %2 bytes</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>the compressed vector ends after %1 of %2 records</source>
        <translation>el vector comprimido termina tras %1 de %2 registros</translation>
    </message>
    <message>
        <location line="+71"/>
        <source>record %1: the coordinates are not finite</source>
        <translation>registro %1: las coordenadas no son finitas</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>&quot;%1&quot; is no number</source>
        <translation>&quot;%1&quot; no es un número</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>&quot;%1&quot; is no integer</source>
        <translation>&quot;%1&quot; no es un número entero</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>%1 &quot;%2&quot; lies outside the file&apos;s data</source>
        <translation>%1 &quot;%2&quot; está fuera de los datos del archivo</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>the quaternion has no length</source>
        <translation>el cuaternión no tiene longitud</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>%1 &quot;%2&quot; is no number</source>
        <translation>%1 &quot;%2&quot; no es un número</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>minimum %1 lies above maximum %2</source>
        <translation>el mínimo %1 está por encima del máximo %2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>a point field of type &quot;%1&quot;</source>
        <translation>un campo de puntos de tipo &quot;%1&quot;</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Scan %1</source>
        <translation>Escaneo %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>no compressed vector of points</source>
        <translation>ningún vector comprimido de puntos</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>no record count</source>
        <translation>ningún número de registros</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>only the bit-pack codec is supported</source>
        <translation>solo se admite el códec bit-pack</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>no prototype</source>
        <translation>ningún prototipo</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the field %1 comes twice</source>
        <translation>el campo %1 aparece dos veces</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>the points have neither cartesian nor spherical coordinates</source>
        <translation>los puntos no tienen coordenadas cartesianas ni esféricas</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>a row index without a column index, or the other way round</source>
        <translation>un índice de fila sin índice de columna, o al revés</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>%1 %2 makes no grid</source>
        <translation>%1 %2 no forma una cuadrícula</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>a grid of %1 × %2 is too large</source>
        <translation>una cuadrícula de %1 × %2 es demasiado grande</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>an image of %1 bytes</source>
        <translation>una imagen de %1 bytes</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>too short for an E57 file</source>
        <translation>demasiado corto para un archivo E57</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not an E57 file</source>
        <translation>no es un archivo E57</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>E57 version %1 is not supported</source>
        <translation>la versión E57 %1 no es compatible</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the file is %1 bytes long, its header says %2</source>
        <translation>el archivo tiene %1 bytes, su cabecera dice %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the XML section (%1 bytes at byte %2) does not fit the file</source>
        <translation>la sección XML (%1 bytes en el byte %2) no cabe en el archivo</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>XML section, %1</source>
        <translation>sección XML, %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>no scan in the file</source>
        <translation>ningún escaneo en el archivo</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::E57XmlNode</name>
    <message>
        <location filename="../libs/core/src/fileio/e57xmlnode.cpp" line="+19"/>
        <source>line %1: the XML is too large or too deep</source>
        <translation>línea %1: el XML es demasiado grande o demasiado profundo</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeModel</name>
    <message>
        <location filename="../libs/core/src/project/filetreemodel.cpp" line="+246"/>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Planar View</source>
        <translation>Vista plana</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Spherical View</source>
        <translation>Vista esférica</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pointcloud View</source>
        <translation>Vista de nube de puntos</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::FileTreeView</name>
    <message>
        <location filename="../libs/core/src/mainwindow/filetreeview.cpp" line="+85"/>
        <location line="+62"/>
        <source>Delete Items</source>
        <translation>Eliminar elementos</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Add Scans</source>
        <translation>Añadir escaneos</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add Folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rename Folder</source>
        <translation>Cambiar nombre de carpeta</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Expand Folder</source>
        <translation>Expandir carpeta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Collapse Folder</source>
        <translation>Contraer carpeta</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open Planar View</source>
        <translation>Abrir vista plana</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Spherical View</source>
        <translation>Abrir vista esférica</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Pointcloud View</source>
        <translation>Abrir vista de nube de puntos</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close Views of this Scan</source>
        <translation>Cerrar las vistas de este escaneo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close Views of all other Scans</source>
        <translation>Cerrar las vistas de todos los demás escaneos</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>New Folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Delete the selected items from the project? The scan files stay on disk.</source>
        <translation>¿Eliminar del proyecto los elementos seleccionados? Los archivos de escaneo permanecen en el disco.</translation>
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
        <translation>Hora</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::MDIPointcloudViewSubWindow</name>
    <message>
        <location filename="../libs/core/src/mainwindow/mdipointcloudviewsubwindow.cpp" line="+27"/>
        <source>Reset up-vector</source>
        <translation>Restablecer el vector vertical</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Background Color</source>
        <translation>Color de fondo</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointInfoTableModel</name>
    <message>
        <location filename="../libs/core/src/mainwindow/pointinfotablemodel.cpp" line="+118"/>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refl.</source>
        <translation>Refl.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Filename</source>
        <translation>Nombre de archivo</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointInfoTableView</name>
    <message>
        <location filename="../libs/core/src/mainwindow/pointinfotableview.cpp" line="+29"/>
        <source>Specify z-Coordinate</source>
        <translation>Especificar coordenada z</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>Save Entries to File</source>
        <translation>Guardar entradas en un archivo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset z-Coordinate to 0.0</source>
        <translation>Restablecer coordenada z a 0.0</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set Value of z-Coordinate</source>
        <translation>Establecer valor de la coordenada z</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PointcloudViewGLWidget</name>
    <message>
        <location filename="../libs/core/src/glviews/pointcloudviewglwidget.cpp" line="+303"/>
        <source>Background Color</source>
        <translation>Color de fondo</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Scan Colours</source>
        <translation>Colores del escaneo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Intensity</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Dark Grey</source>
        <translation>Gris oscuro</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectImport</name>
    <message>
        <location filename="../libs/core/src/project/projectimport.cpp" line="+70"/>
        <source>%1: only PTX and E57 files can be imported</source>
        <translation>%1: solo se pueden importar archivos PTX y E57</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>no project is open for writing</source>
        <translation>no hay ningún proyecto abierto para escritura</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+89"/>
        <source>cannot create %1</source>
        <translation>no se puede crear %1</translation>
    </message>
    <message>
        <location line="-56"/>
        <source>%1: not enough memory</source>
        <translation>%1: memoria insuficiente</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>%1: the written scan cannot be read back: %2</source>
        <translation>%1: no se puede volver a leer el escaneo escrito: %2</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ProjectMessages</name>
    <message>
        <location filename="../libs/core/src/project/projectmessages.cpp" line="+9"/>
        <source>A project is already open. Close it before opening another one.
</source>
        <translation>Ya hay un proyecto abierto. Ciérrelo antes de abrir otro.
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>A lock file was found indicating that this directory is in use by another person or application.

</source>
        <translation>Se ha encontrado un archivo de bloqueo que indica que otra persona o aplicación está usando este directorio.

</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>  user: %1
</source>
        <translation>  usuario: %1
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>  directory: %1
</source>
        <translation>  directorio: %1
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>  lockfile: %1
</source>
        <translation>  archivo de bloqueo: %1
</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The lock file %1 could not be removed. The project stays open.
</source>
        <translation>No se ha podido eliminar el archivo de bloqueo %1. El proyecto sigue abierto.
</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>An error occured reading the project file %1.

</source>
        <translation>Se produjo un error al leer el archivo de proyecto %1.

</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>It was written with Tarvenix version: %1.%2.%3 using project format version: %4. </source>
        <translation>Se escribió con la versión de Tarvenix %1.%2.%3 con el formato de proyecto versión %4. </translation>
    </message>
    <message>
        <location line="+5"/>
        <source>If this version is newer than the currently used version, you need to upgrade your Tarvenix Software Suite.
</source>
        <translation>Si esta versión es más reciente que la que está usando, debe actualizar su Tarvenix Software Suite.
</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The lock file %1 is no longer the one this application created; somebody else may have taken the project over. The project stays open.
</source>
        <translation>El archivo de bloqueo %1 ya no es el que creó esta aplicación; puede que otra persona se haya hecho cargo del proyecto. El proyecto sigue abierto.
</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Warning: Project file with was written with an older Tarvenix version (%1.%2.%3) using project format version: %4. </source>
        <translation>Advertencia: el archivo de proyecto se escribió con una versión anterior de Tarvenix (%1.%2.%3) con el formato de proyecto versión %4. </translation>
    </message>
    <message>
        <location line="+6"/>
        <source>If you save this project again, it can be re-opened only with applications supporting the new project format.
</source>
        <translation>Si vuelve a guardar este proyecto, solo podrá abrirse con aplicaciones compatibles con el nuevo formato de proyecto.
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
        <translation>No se pudieron guardar los cambios porque el proyecto se abrió en modo de solo lectura.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The project file %1 could not be written.
</source>
        <translation>No se pudo escribir el archivo de proyecto %1.
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The project file %1 was missing; it was restored from the copy that the last save left behind.
</source>
        <translation>Faltaba el archivo de proyecto %1; se ha restaurado a partir de la copia que dejó el último guardado.
</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::PtxReader</name>
    <message>
        <location filename="../libs/core/src/fileio/ptxreader.cpp" line="+37"/>
        <source>cannot seek to byte %1</source>
        <translation>no se puede ir al byte %1</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>line longer than %1 bytes</source>
        <translation>línea de más de %1 bytes</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>cannot read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <location line="+106"/>
        <source>the file ends inside a scan</source>
        <translation>el archivo termina dentro de un escaneo</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>expected %1 numbers</source>
        <translation>se esperaban %1 números</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+32"/>
        <source>a number that is not finite</source>
        <translation>un número que no es finito</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>the file ends inside a scan header</source>
        <translation>el archivo termina dentro de la cabecera de un escaneo</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>a header line of %1 numbers expected</source>
        <translation>se esperaba una línea de cabecera de %1 números</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 %2 is not between 1 and %3</source>
        <translation>%1 %2 no está entre 1 y %3</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Scan %1</source>
        <translation>Escaneo %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>column count</source>
        <translation>número de columnas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>row count</source>
        <translation>número de filas</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 × %2 points are more than %3</source>
        <translation>%1 × %2 puntos son más de %3</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>the file ends at line %1, inside scan %2 of %3 × %4 points</source>
        <translation>el archivo termina en la línea %1, dentro del escaneo %2 de %3 × %4 puntos</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>expected 4 or 7 numbers</source>
        <translation>se esperaban 4 o 7 números</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>no scan in the file</source>
        <translation>ningún escaneo en el archivo</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ReferencePointsTableModel</name>
    <message>
        <location filename="../libs/core/src/project/referencepointstablemodel.cpp" line="+42"/>
        <source>Sphere</source>
        <translation>Esfera</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Name</source>
        <translation>Nombre</translation>
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
        <translation>Radio [m]</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ScanImporter</name>
    <message>
        <location filename="../libs/core/src/fileio/scanimporter.cpp" line="+117"/>
        <source>a point at column %1, row %2 lies outside the grid of %3 × %4</source>
        <translation>un punto en la columna %1, fila %2 está fuera de la cuadrícula de %3 × %4</translation>
    </message>
    <message>
        <location line="+94"/>
        <source>a grid of %1 × %2 for only %3 points</source>
        <translation>una cuadrícula de %1 × %2 para solo %3 puntos</translation>
    </message>
    <message>
        <location line="+111"/>
        <source>no point with a return to grid</source>
        <translation>ningún punto con retorno que colocar en la cuadrícula</translation>
    </message>
    <message>
        <location line="+79"/>
        <source>a step of %1° makes more than %2 cells; choose a larger step</source>
        <translation>un paso de %1° produce más de %2 celdas; elija un paso mayor</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>the point of cell (%1, %2) is not finite</source>
        <translation>el punto de la celda (%1, %2) no es finito</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>the point of cell (%1, %2) lies %3 m away, beyond the %4 m that scan files store</source>
        <translation>el punto de la celda (%1, %2) está a %3 m, más allá de los %4 m que guardan los archivos de escaneo</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>the grid of %1 × %2 is too large to be held whole; at most %3 cells</source>
        <translation>la cuadrícula de %1 × %2 es demasiado grande para mantenerla entera; como máximo %3 celdas</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>the points of column %1 are not stored together</source>
        <translation>los puntos de la columna %1 no están guardados juntos</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>its panorama image cannot be decoded</source>
        <translation>no se puede decodificar su imagen panorámica</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>no memory for a panorama of %1 × %2 pixels</source>
        <translation>no hay memoria para un panorama de %1 × %2 píxeles</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::SphericalViewGLWidget</name>
    <message>
        <location filename="../libs/core/src/glviews/sphericalviewglwidget.cpp" line="+220"/>
        <source>Error Initializing Display Driver</source>
        <translation>Error al inicializar el controlador gráfico</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenGL driver could not be initialized without errors.</source>
        <translation>No se pudo inicializar el controlador OpenGL sin errores.</translation>
    </message>
    <message>
        <location line="+232"/>
        <source>%1
distance: %2 m</source>
        <translation>%1
distancia: %2 m</translation>
    </message>
</context>
<context>
    <name>TVX::CORE::ViewerSceneReader</name>
    <message>
        <location filename="../libs/core/src/annotations/viewerscenereader.cpp" line="+29"/>
        <source>The file is not an Tarvenix viewer version 1.0 or 2.0 file.</source>
        <translation>El archivo no es un archivo de Tarvenix Viewer de la versión 1.0 o 2.0.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Invalid number of entities</source>
        <translation>Número de entidades no válido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unknown dimensioning type</source>
        <translation>Tipo de acotación desconocido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Entity declarations are not supported</source>
        <translation>No se admiten declaraciones de entidades</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Elements are nested too deeply</source>
        <translation>Los elementos están anidados a demasiada profundidad</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1
Line %2, column %3</source>
        <translation>%1
Línea %2, columna %3</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::PreferencesWidget</name>
    <message>
        <location filename="../app/preferenceswidget.cpp" line="+67"/>
        <source>Edit Preferences</source>
        <translation>Editar preferencias</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Reset:</source>
        <translation>Restablecer:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset Application Settings to Defaults</source>
        <translation>Restablecer la configuración predeterminada de la aplicación</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Language Selection:</source>
        <translation>Selección de idioma:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use System Default</source>
        <translation>Usar el predeterminado del sistema</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Use Other than System Default</source>
        <translation>Usar uno distinto del predeterminado del sistema</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Application Parameter:</source>
        <translation>Parámetros de la aplicación:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show Station Marks</source>
        <translation>Mostrar marcas de estación</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Same as Active Window</source>
        <translation>Igual que la ventana activa</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Planar View</source>
        <translation>Vista plana</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Spherical View</source>
        <translation>Vista esférica</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PointCloud View</source>
        <translation>Vista de nube de puntos</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>minimal Distance:</source>
        <translation>Distancia mínima:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>maximal Distance:</source>
        <translation>Distancia máxima:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>View to be opened by default:</source>
        <translation>Vista que se abre por defecto:</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Reset Application Settings</source>
        <translation>Restablecer configuración de la aplicación</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All application settings are reset to their defaults. Please restart all Tarvnix applications before you continue.</source>
        <translation>Toda la configuración de la aplicación se ha restablecido a sus valores predeterminados. Reinicie todas las aplicaciones de Tarvnix antes de continuar.</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::ShowProjectCoordSysDialog</name>
    <message>
        <location filename="../app/showprojectcoordsysdialog.cpp" line="+53"/>
        <source>The project file holds no valid number here.</source>
        <translation>El archivo de proyecto no contiene aquí un número válido.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Project Coordinate Systems</source>
        <translation>Sistemas de coordenadas del proyecto</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>default</source>
        <translation>predeterminado</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Rotation</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Translation</source>
        <translation>Traslación</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1 (m):</source>
        <translation>%1 (m):</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Coordinate system:</source>
        <translation>Sistema de coordenadas:</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::StartupHelpWidget</name>
    <message>
        <location filename="../app/startuphelpwidget.cpp" line="+20"/>
        <source>Quick Introduction</source>
        <translation>Introducción rápida</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Show this help on startup</source>
        <translation>Mostrar esta ayuda al iniciar</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>&lt;h2&gt;Welcome to the Scan Viewer&lt;/h2&gt;&lt;p&gt;The viewer shows projects of terrestrial laser scans: you look at the scans, pick 3D coordinates, measure distances and draw annotations.&lt;/p&gt;&lt;h3&gt;Projects&lt;/h3&gt;&lt;p&gt;A project is a folder that holds a project file and a folder named &lt;i&gt;scans&lt;/i&gt; with the scan files and their panorama images. Open it with &lt;b&gt;File &amp;gt; Open Project&lt;/b&gt;; the last ten projects are listed under &lt;b&gt;File &amp;gt; Recently Opened Files&lt;/b&gt;. While you work on a project, others can only open it read-only.&lt;/p&gt;&lt;h3&gt;The project tree&lt;/h3&gt;&lt;p&gt;The &lt;b&gt;Project&lt;/b&gt; dock lists the scans in their folders. Double click a scan to open it in the default view. The context menu (right mouse button) opens the planar, spherical or point cloud view of the selected scans, closes their views, and adds scans and folders, renames folders or deletes items. Drag items to arrange them in folders; the check box of a scan switches it off and closes its views.&lt;/p&gt;&lt;h3&gt;The three views&lt;/h3&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Planar view&lt;/b&gt;: the panorama image of the scan, one pixel per measured cell.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Spherical view&lt;/b&gt;: the panorama around the scanner&apos;s position, as if you stood there; drag to look around.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Point cloud view&lt;/b&gt;: the measured points in 3D; drag to turn the cloud.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Any number of views can be open at once; &lt;b&gt;Windows&lt;/b&gt; arranges or closes them. The zoom tools and &lt;b&gt;Zoom All&lt;/b&gt; change the magnification; hold the middle mouse button, or Ctrl and the left button, to pan.&lt;/p&gt;&lt;h3&gt;Picking coordinates&lt;/h3&gt;&lt;p&gt;With &lt;b&gt;Pick 3D Coordinates&lt;/b&gt; on, click into a view: the point&apos;s column, row, coordinates, reflectance and distance are added to the &lt;b&gt;Point Information&lt;/b&gt; dock. &lt;b&gt;Clear Point List&lt;/b&gt; empties the list; &lt;b&gt;Clear Picked Points from View&lt;/b&gt; removes the marks.&lt;/p&gt;&lt;h3&gt;Measuring&lt;/h3&gt;&lt;p&gt;The measuring tools &lt;b&gt;3D Distance&lt;/b&gt;, &lt;b&gt;Distance in XY&lt;/b&gt; and &lt;b&gt;Delta Z&lt;/b&gt; place a dimensioning between two points you click. &lt;b&gt;Detailed Distance Information&lt;/b&gt; shows all three distances between the last two picked points.&lt;/p&gt;&lt;h3&gt;Annotations&lt;/h3&gt;&lt;p&gt;Draw polygons, rectangles, ellipses and texts with the drawing tools; a polygon is closed with a double click. &lt;b&gt;Edit Elements&lt;/b&gt; lets you move and reshape them. Annotations are kept per scan and saved with the project by &lt;b&gt;File &amp;gt; Save Project&lt;/b&gt;.&lt;/p&gt;&lt;h3&gt;The lens&lt;/h3&gt;&lt;p&gt;Hold Shift while you move the mouse over a planar view: the &lt;b&gt;Lens&lt;/b&gt; dock magnifies the cells around the cursor and shows the coordinates of the cell in its centre.&lt;/p&gt;&lt;h3&gt;Station marks&lt;/h3&gt;&lt;p&gt;The positions of the other scans nearby are shown as station marks. Double click one to open that scan.&lt;/p&gt;&lt;h3&gt;Preferences&lt;/h3&gt;&lt;p&gt;&lt;b&gt;Preferences...&lt;/b&gt; in the help menu sets the language, whether station marks are shown and within which distances, and which view a double click in the project tree opens. &lt;b&gt;Project Coordinates...&lt;/b&gt; shows the coordinate systems of the project.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Bienvenido al Scan Viewer&lt;/h2&gt;&lt;p&gt;El visor muestra proyectos de escaneos láser terrestres: puede observar los escaneos, capturar coordenadas 3D, medir distancias y dibujar anotaciones.&lt;/p&gt;&lt;h3&gt;Proyectos&lt;/h3&gt;&lt;p&gt;Un proyecto es una carpeta que contiene un archivo de proyecto y una carpeta llamada &lt;i&gt;scans&lt;/i&gt; con los archivos de escaneo y sus imágenes panorámicas. Ábralo con &lt;b&gt;Archivo &amp;gt; Abrir proyecto&lt;/b&gt;; los diez últimos proyectos aparecen en &lt;b&gt;Archivo &amp;gt; Archivos abiertos recientemente&lt;/b&gt;. Mientras usted trabaja en un proyecto, los demás solo pueden abrirlo en modo de solo lectura.&lt;/p&gt;&lt;h3&gt;El árbol del proyecto&lt;/h3&gt;&lt;p&gt;El panel &lt;b&gt;Proyecto&lt;/b&gt; muestra los escaneos en sus carpetas. Haga doble clic en un escaneo para abrirlo en la vista predeterminada. El menú contextual (botón derecho del ratón) abre la vista plana, esférica o de nube de puntos de los escaneos seleccionados, cierra sus vistas, añade escaneos y carpetas, cambia el nombre de carpetas o elimina elementos. Arrastre los elementos para organizarlos en carpetas; la casilla de un escaneo lo desactiva y cierra sus vistas.&lt;/p&gt;&lt;h3&gt;Las tres vistas&lt;/h3&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Vista plana&lt;/b&gt;: la imagen panorámica del escaneo, un píxel por celda medida.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Vista esférica&lt;/b&gt;: el panorama alrededor de la posición del escáner, como si estuviera allí; arrastre para mirar alrededor.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Vista de nube de puntos&lt;/b&gt;: los puntos medidos en 3D; arrastre para girar la nube.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Puede haber cualquier número de vistas abiertas a la vez; &lt;b&gt;Ventanas&lt;/b&gt; las organiza o las cierra. Las herramientas de zoom y &lt;b&gt;Ver todo&lt;/b&gt; cambian la ampliación; mantenga pulsado el botón central del ratón, o Ctrl y el botón izquierdo, para desplazar la vista.&lt;/p&gt;&lt;h3&gt;Capturar coordenadas&lt;/h3&gt;&lt;p&gt;Con &lt;b&gt;Capturar coordenadas 3D&lt;/b&gt; activo, haga clic en una vista: la columna, la fila, las coordenadas, la reflectancia y la distancia del punto se añaden al panel &lt;b&gt;Información del punto&lt;/b&gt;. &lt;b&gt;Vaciar lista de puntos&lt;/b&gt; vacía la lista; &lt;b&gt;Quitar los puntos capturados de la vista&lt;/b&gt; elimina las marcas.&lt;/p&gt;&lt;h3&gt;Medir&lt;/h3&gt;&lt;p&gt;Las herramientas de medición &lt;b&gt;Distancia 3D&lt;/b&gt;, &lt;b&gt;Distancia en XY&lt;/b&gt; y &lt;b&gt;Delta Z&lt;/b&gt; colocan una cota entre dos puntos en los que hace clic. &lt;b&gt;Información detallada de distancia&lt;/b&gt; muestra las tres distancias entre los dos últimos puntos capturados.&lt;/p&gt;&lt;h3&gt;Anotaciones&lt;/h3&gt;&lt;p&gt;Dibuje polígonos, rectángulos, elipses y textos con las herramientas de dibujo; un polígono se cierra con un doble clic. &lt;b&gt;Editar elementos&lt;/b&gt; permite moverlos y modificar su forma. Las anotaciones se guardan por escaneo junto con el proyecto mediante &lt;b&gt;Archivo &amp;gt; Guardar proyecto&lt;/b&gt;.&lt;/p&gt;&lt;h3&gt;La lupa&lt;/h3&gt;&lt;p&gt;Mantenga pulsada la tecla Mayús mientras mueve el ratón sobre una vista plana: el panel &lt;b&gt;Lupa&lt;/b&gt; amplía las celdas alrededor del cursor y muestra las coordenadas de la celda central.&lt;/p&gt;&lt;h3&gt;Marcas de estación&lt;/h3&gt;&lt;p&gt;Las posiciones de los demás escaneos cercanos se muestran como marcas de estación. Haga doble clic en una para abrir ese escaneo.&lt;/p&gt;&lt;h3&gt;Preferencias&lt;/h3&gt;&lt;p&gt;&lt;b&gt;Preferencias...&lt;/b&gt; en el menú de ayuda establece el idioma, si se muestran las marcas de estación y dentro de qué distancias, y qué vista abre un doble clic en el árbol del proyecto. &lt;b&gt;Coordenadas del proyecto...&lt;/b&gt; muestra los sistemas de coordenadas del proyecto.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>TVX::VIEWER::ViewerMainWindow</name>
    <message>
        <location filename="../app/viewermainwindow.cpp" line="+34"/>
        <source>Preferences...</source>
        <translation>Preferencias...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Project Coordinates...</source>
        <translation>Coordenadas del proyecto...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show Quick Introduction</source>
        <translation>Mostrar introducción rápida</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+63"/>
        <source>About Tarvenix Scan Viewer</source>
        <translation>Acerca de Tarvenix Scan Viewer</translation>
    </message>
    <message>
        <location line="-62"/>
        <location line="+74"/>
        <source>More About Tarvenix</source>
        <translation>Más sobre Tarvenix</translation>
    </message>
    <message>
        <location line="-72"/>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>&lt;h3&gt;Tarvenix Scan Viewer&lt;/h3&gt;&lt;p&gt;Version %1.%2.%3&lt;/p&gt;&lt;p&gt;Views projects of terrestrial laser scans: panoramas, spheres around each station and point clouds; picks coordinates, measures distances and keeps annotations beside each scan.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tarvenix Scan Viewer&lt;/h3&gt;&lt;p&gt;Versión %1.%2.%3&lt;/p&gt;&lt;p&gt;Muestra proyectos de escaneos láser terrestres: panoramas, esferas alrededor de cada estación y nubes de puntos; captura coordenadas, mide distancias y guarda anotaciones junto a cada escaneo.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The Tarvenix Software Suite registers, models and publishes terrestrial laser scans. This viewer opens the projects that the suite writes.</source>
        <translation>Tarvenix Software Suite registra, modela y publica escaneos láser terrestres. Este visor abre los proyectos que escribe la suite.</translation>
    </message>
</context>
<context>
    <name>application start up</name>
    <message>
        <location filename="../app/main.cpp" line="+71"/>
        <source>Please specify your user name</source>
        <translation>Indique su nombre de usuario</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
</context>
</TS>
