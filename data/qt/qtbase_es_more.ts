<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="es">
<context>
    <name>Print Device Input Slot</name>
    <message>
        <source>Automatic</source>
        <translation>Automática</translation>
    </message>
</context>
<context>
    <name>Print Device Output Bin</name>
    <message>
        <source>Automatic</source>
        <translation>Automática</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Carpeta de archivos</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Acceso directo</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Archivo %1</translation>
    </message>
</context>
<context>
    <name>QCupsPrinterSupport</name>
    <message>
        <source>Authentication Needed</source>
        <translation>Se necesita identificación</translation>
    </message>
    <message>
        <source>Authentication needed to use %1 on %2.</source>
        <translation>Se necesita identificación para usar %1 en %2.</translation>
    </message>
    <message>
        <source>Authentication needed to use %1.</source>
        <translation>Se necesita identificación para usar %1.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Usuario:</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir al directorio superior</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>&lt;b&gt;The name "%1" cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;No se puede utilizar el nombre «%1».&lt;/b&gt;&lt;p&gt;Intente usar otro nombre con menos caracteres o sin signos de puntuación.</translation>
    </message>
</context>
<context>
    <name>QPageSize</name>
    <message>
        <source>Architect D</source>
        <translation>Arquitecto D</translation>
    </message>
    <message>
        <source>Custom (%1in x %2in)</source>
        <translation>Personalizado (%1in x %2in)</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
        <translation>%1 no está bien escrito. Use «,» para separar intervalos y páginas y «-» para indicar un intervalo, y compruebe que los intervalos no se cruzan entre sí.</translation>
    </message>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Conflictos en la impresión a doble cara</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Páginas mal indicadas</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>La configuración de la impresión a doble cara tiene conflictos. ¿Desea resolverlos?</translation>
    </message>
    <message>
        <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
        <translation>Las opciones «Páginas por hoja» y «Conjunto de páginas» no se pueden usar a la vez.
Desactive una de las dos.</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesDialog</name>
    <message>
        <source>Advanced Option Conflicts</source>
        <translation>Conflictos en las opciones avanzadas</translation>
    </message>
    <message>
        <source>Page Setup Conflicts</source>
        <translation>Conflictos en la configuración de página</translation>
    </message>
    <message>
        <source>There are conflicts in page setup options. Do you want to fix them?</source>
        <translation>La configuración de página tiene conflictos. ¿Desea resolverlos?</translation>
    </message>
    <message>
        <source>There are conflicts in some advanced options. Do you want to fix them?</source>
        <translation>Algunas opciones avanzadas tienen conflictos. ¿Desea resolverlos?</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>There are conflicts in some options. Please fix them.</source>
        <translation>Algunas opciones tienen conflictos. Resuélvalos.</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>Impresión a doble cara</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Encuadernar por el lado largo</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Encuadernar por el lado corto</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Page Set:</source>
        <translation>Conjunto de páginas:</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Indique páginas o intervalos separados por comas. Un intervalo se indica con dos números separados por un guion. Por ejemplo, 3,5-7,9 imprime las páginas 3, 5, 6, 7 y 9.</translation>
    </message>
</context>
</TS>
