<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="eu">
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>Itxi fitxa</translation>
    </message>
</context>
<context>
    <name>Print Device Input Slot</name>
    <message>
        <source>Automatic</source>
        <translation>Automatikoa</translation>
    </message>
</context>
<context>
    <name>Print Device Output Bin</name>
    <message>
        <source>Automatic</source>
        <translation>Automatikoa</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>File</source>
        <translation>Fitxategia</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Ezizena</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unitatea</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Fitxategi-karpeta</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Karpeta</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Ezezaguna</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Lasterbidea</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 fitxategia</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Gutxitu</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Handitu</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>Hautatu &amp;dena</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>True</source>
        <translation>Egia</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Gezurra</translation>
    </message>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Ireki aukeren zerrenda</translation>
    </message>
</context>
<context>
    <name>QCupsJobWidget</name>
    <message>
        <source>Job</source>
        <translation>Lana</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Hasierakoa:</translation>
    </message>
    <message>
        <source>End:</source>
        <translation>Amaierakoa:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Bat ere ez</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>Azal-orriak</translation>
    </message>
    <message>
        <source>Night (18:00 to 05:59)</source>
        <translation>Gauez (18:00etatik 05:59ra)</translation>
    </message>
    <message>
        <source>Day (06:00 to 17:59)</source>
        <translation>Egunez (06:00etatik 17:59ra)</translation>
    </message>
    <message>
        <source>Second Shift (16:00 to 23:59)</source>
        <translation>Bigarren txanda (16:00etatik 23:59ra)</translation>
    </message>
    <message>
        <source>Third Shift (00:00 to 07:59)</source>
        <translation>Hirugarren txanda (00:00etatik 07:59ra)</translation>
    </message>
    <message>
        <source>Weekend (Saturday to Sunday)</source>
        <translation>Asteburua (larunbatetik igandera)</translation>
    </message>
    <message>
        <source>Specific Time</source>
        <translation>Ordu jakin batean</translation>
    </message>
    <message>
        <source>Billing information:</source>
        <translation>Fakturazio-informazioa:</translation>
    </message>
    <message>
        <source>Scheduled printing:</source>
        <translation>Inprimatze programatua:</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Sekretua</translation>
    </message>
    <message>
        <source>Top Secret</source>
        <translation>Goi-sekretua</translation>
    </message>
    <message>
        <source>Job Control</source>
        <translation>Lanaren kontrola</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estandarra</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Sailkatua</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Sailkatu gabea</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Konfidentziala</translation>
    </message>
    <message>
        <source>Hold Indefinitely</source>
        <translation>Atxiki mugarik gabe</translation>
    </message>
    <message>
        <source>Print Immediately</source>
        <translation>Inprimatu berehala</translation>
    </message>
    <message>
        <source>Job priority:</source>
        <translation>Lanaren lehentasuna:</translation>
    </message>
</context>
<context>
    <name>QCupsPrinterSupport</name>
    <message>
        <source>Authentication Needed</source>
        <translation>Identifikazioa behar da</translation>
    </message>
    <message>
        <source>Authentication needed to use %1 on %2.</source>
        <translation>%2 zerbitzarian %1 erabiltzeko identifikazioa behar da.</translation>
    </message>
    <message>
        <source>Authentication needed to use %1.</source>
        <translation>%1 erabiltzeko identifikazioa behar da.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Pasahitza:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Erabiltzaile-izena:</translation>
    </message>
</context>
<context>
    <name>QDateTimeParser</name>
    <message>
        <source>AM</source>
        <translation>AM</translation>
    </message>
    <message>
        <source>PM</source>
        <translation>PM</translation>
    </message>
    <message>
        <source>am</source>
        <translation>am</translation>
    </message>
    <message>
        <source>pm</source>
        <translation>pm</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>What's This?</source>
        <translation>Zer da hau?</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>Ados</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Back</source>
        <translation>Atzera</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fitxategia</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ireki</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ireki</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Gorde</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Ezizena</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unitatea</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fitxategiak</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Erakutsi </translation>
    </message>
    <message>
        <source>'%1' is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» idazteko babestuta dago.
Hala ere ezabatu nahi duzu?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete '%1'?</source>
        <translation>Ziur zaude «%1» ezabatu nahi duzula?</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lekuen eta laster-marken zerrenda</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Fitxategiaren &amp;izena:</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Ezkerra</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Gora</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Eskuina</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Fitxategi-karpeta</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ezabatu</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Karpeta berria</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Karpeta</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Goragoko karpeta</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Karpeta berria</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kendu</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Nire ordenagailua</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Begiratu hemen:</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Sortu karpeta berri bat</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 fitxategia</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Fitxategi mota:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Bilatu karpeta</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Erakutsi &amp;ezkutuko fitxategiak</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Gorde honela</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Ez da karpeta aurkitu.
Egiaztatu karpetaren izena zuzena dela.</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Alboko barra</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Zerrenda ikuspegia</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Aukeratu</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;zabatu</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Fitxategi guztiak (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Fitxategi guztiak (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Karpetak</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Aldatu i&amp;zena</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Ezin izan da karpeta ezabatu.</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Karpeta:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Ezezaguna</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 badago lehendik ere.
Ordeztu nahi duzu?</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Aurrera</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Joan aurrera</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Joan goragoko karpetara</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Azken lekuak</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Joan atzera</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Aldatu xehetasunen ikuspegira</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Sortu karpeta berria</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Lasterbidea</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Xehetasunen ikuspegia</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Ez da fitxategia aurkitu.
Egiaztatu fitxategiaren izena zuzena dela.</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Aldatu zerrendaren ikuspegira</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Kind</source>
        <translation>Mota</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Izena</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaina</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Mota</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name "%1" can not be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuations marks.</source>
        <translation>&lt;b&gt;Ezin da «%1» izena erabili.&lt;/b&gt;&lt;p&gt;Saiatu beste izen batekin, karaktere gutxiagokoa edo puntuazio-markarik gabea.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name "%1" cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Ezin da «%1» izena erabili.&lt;/b&gt;&lt;p&gt;Saiatu beste izen batekin, karaktere gutxiagokoa edo puntuazio-markarik gabea.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Nire ordenagailua</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordenagailua</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Fitxategi-izena ez da baliozkoa</translation>
    </message>
    <message>
        <source>%1 byte(s)</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Azken aldaketa</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Ados</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Gorde</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>It&amp;xi</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Itxi gorde gabe</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Utzi</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>QInputDialog</name>
    <message>
        <source>Enter a value:</source>
        <translation>Sartu balio bat:</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ebaki</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiatu</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Berregin</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desegin</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Itsatsi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ezabatu</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Hautatu dena</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>OK</source>
        <translation>Ados</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Laguntza</translation>
    </message>
    <message>
        <source>Show Details...</source>
        <translation>Erakutsi xehetasunak...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Ezkutatu xehetasunak...</translation>
    </message>
</context>
<context>
    <name>QPageSetupWidget</name>
    <message>
        <source>CC</source>
        <translation>CC</translation>
    </message>
    <message>
        <source>DD</source>
        <translation>DD</translation>
    </message>
    <message>
        <source>in</source>
        <translation>in</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>P̸</source>
        <translation>P̸</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Inprimakia</translation>
    </message>
    <message>
        <source>bottom margin</source>
        <translation>beheko marjina</translation>
    </message>
    <message>
        <source>top margin</source>
        <translation>goiko marjina</translation>
    </message>
    <message>
        <source>left margin</source>
        <translation>ezkerreko marjina</translation>
    </message>
    <message>
        <source>right margin</source>
        <translation>eskuineko marjina</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papera</translation>
    </message>
    <message>
        <source>Paper source:</source>
        <translation>Paperaren iturria:</translation>
    </message>
    <message>
        <source>Pica (P̸)</source>
        <translation>Pikak (P̸)</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Marjinak</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Pertsonalizatua</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontala</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Bertikala</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Bertikala, alderantziz</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Horizontala, alderantziz</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Orrialdearen diseinua</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Zabalera:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Altuera:</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientazioa</translation>
    </message>
    <message>
        <source>Didot (DD)</source>
        <translation>Didot (DD)</translation>
    </message>
    <message>
        <source>Page order:</source>
        <translation>Orrialdeen ordena:</translation>
    </message>
    <message>
        <source>Page size:</source>
        <translation>Orrialdearen tamaina:</translation>
    </message>
    <message>
        <source>Cicero (CC)</source>
        <translation>Zizeroak (CC)</translation>
    </message>
    <message>
        <source>Millimeters (mm)</source>
        <translation>Milimetroak (mm)</translation>
    </message>
    <message>
        <source>Points (pt)</source>
        <translation>Puntuak (pt)</translation>
    </message>
    <message>
        <source>Inches (in)</source>
        <translation>Hazbeteak (in)</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>Orrialdeak orriko:</translation>
    </message>
</context>
<context>
    <name>QPageSize</name>
    <message>
        <source>A0</source>
        <translation>A0</translation>
    </message>
    <message>
        <source>A1</source>
        <translation>A1</translation>
    </message>
    <message>
        <source>A2</source>
        <translation>A2</translation>
    </message>
    <message>
        <source>A3</source>
        <translation>A3</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>A5</source>
        <translation>A5</translation>
    </message>
    <message>
        <source>A6</source>
        <translation>A6</translation>
    </message>
    <message>
        <source>A7</source>
        <translation>A7</translation>
    </message>
    <message>
        <source>A8</source>
        <translation>A8</translation>
    </message>
    <message>
        <source>A9</source>
        <translation>A9</translation>
    </message>
    <message>
        <source>B0</source>
        <translation>B0</translation>
    </message>
    <message>
        <source>B1</source>
        <translation>B1</translation>
    </message>
    <message>
        <source>B2</source>
        <translation>B2</translation>
    </message>
    <message>
        <source>B3</source>
        <translation>B3</translation>
    </message>
    <message>
        <source>B4</source>
        <translation>B4</translation>
    </message>
    <message>
        <source>B5</source>
        <translation>B5</translation>
    </message>
    <message>
        <source>B6</source>
        <translation>B6</translation>
    </message>
    <message>
        <source>B7</source>
        <translation>B7</translation>
    </message>
    <message>
        <source>B8</source>
        <translation>B8</translation>
    </message>
    <message>
        <source>B9</source>
        <translation>B9</translation>
    </message>
    <message>
        <source>A10</source>
        <translation>A10</translation>
    </message>
    <message>
        <source>B10</source>
        <translation>B10</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Oharra</translation>
    </message>
    <message>
        <source>Letter / ANSI A</source>
        <translation>Gutuna / ANSI A</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>Legala</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Monarch gutun-azala</translation>
    </message>
    <message>
        <source>Architect A</source>
        <translation>A arkitektoa</translation>
    </message>
    <message>
        <source>Architect B</source>
        <translation>B arkitektoa</translation>
    </message>
    <message>
        <source>Architect C</source>
        <translation>C arkitektoa</translation>
    </message>
    <message>
        <source>Architect D</source>
        <translation>D arkitektoa</translation>
    </message>
    <message>
        <source>Architect E</source>
        <translation>E arkitektoa</translation>
    </message>
    <message>
        <source>Letter Extra</source>
        <translation>Gutun estra</translation>
    </message>
    <message>
        <source>Letter Small</source>
        <translation>Gutun txikia</translation>
    </message>
    <message>
        <source>Envelope You 4</source>
        <translation>You 4 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope US 10</source>
        <translation>AEBko 10. gutun-azala</translation>
    </message>
    <message>
        <source>Envelope US 11</source>
        <translation>AEBko 11. gutun-azala</translation>
    </message>
    <message>
        <source>Envelope US 12</source>
        <translation>AEBko 12. gutun-azala</translation>
    </message>
    <message>
        <source>Envelope US 14</source>
        <translation>AEBko 14. gutun-azala</translation>
    </message>
    <message>
        <source>Envelope PRC 1</source>
        <translation>PRC 1 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope PRC 2</source>
        <translation>PRC 2 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope PRC 3</source>
        <translation>PRC 3 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope PRC 4</source>
        <translation>PRC 4 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope PRC 5</source>
        <translation>PRC 5 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope PRC 6</source>
        <translation>PRC 6 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope PRC 7</source>
        <translation>PRC 7 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope PRC 8</source>
        <translation>PRC 8 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope PRC 9</source>
        <translation>PRC 9 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope C65</source>
        <translation>C65 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>DL gutun-azala</translation>
    </message>
    <message>
        <source>Envelope B4</source>
        <translation>B4 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>B5 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope B6</source>
        <translation>B6 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope C0</source>
        <translation>C0 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope C1</source>
        <translation>C1 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope C2</source>
        <translation>C2 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope C3</source>
        <translation>C3 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>C4 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>C5 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>C6 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope C7</source>
        <translation>C7 gutun-azala</translation>
    </message>
    <message>
        <source>Executive (7.5 x 10 in)</source>
        <translation>Exekutiboa (7,5 x 10 in)</translation>
    </message>
    <message>
        <source>ANSI C</source>
        <translation>ANSI C</translation>
    </message>
    <message>
        <source>ANSI D</source>
        <translation>ANSI D</translation>
    </message>
    <message>
        <source>ANSI E</source>
        <translation>ANSI E</translation>
    </message>
    <message>
        <source>A4 Plus</source>
        <translation>A4 plus</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Pertsonalizatua</translation>
    </message>
    <message>
        <source>JIS B0</source>
        <translation>JIS B0</translation>
    </message>
    <message>
        <source>JIS B1</source>
        <translation>JIS B1</translation>
    </message>
    <message>
        <source>JIS B2</source>
        <translation>JIS B2</translation>
    </message>
    <message>
        <source>JIS B3</source>
        <translation>JIS B3</translation>
    </message>
    <message>
        <source>JIS B4</source>
        <translation>JIS B4</translation>
    </message>
    <message>
        <source>JIS B5</source>
        <translation>JIS B5</translation>
    </message>
    <message>
        <source>JIS B6</source>
        <translation>JIS B6</translation>
    </message>
    <message>
        <source>JIS B7</source>
        <translation>JIS B7</translation>
    </message>
    <message>
        <source>JIS B8</source>
        <translation>JIS B8</translation>
    </message>
    <message>
        <source>JIS B9</source>
        <translation>JIS B9</translation>
    </message>
    <message>
        <source>A3 Extra</source>
        <translation>A3 estra</translation>
    </message>
    <message>
        <source>PRC 16K</source>
        <translation>PRC 16K</translation>
    </message>
    <message>
        <source>PRC 32K</source>
        <translation>PRC 32K</translation>
    </message>
    <message>
        <source>Quarto</source>
        <translation>Quarto</translation>
    </message>
    <message>
        <source>PRC 32K Big</source>
        <translation>PRC 32K handia</translation>
    </message>
    <message>
        <source>A4 Extra</source>
        <translation>A4 estra</translation>
    </message>
    <message>
        <source>A4 Small</source>
        <translation>A4 txikia</translation>
    </message>
    <message>
        <source>Executive (7.25 x 10.5 in)</source>
        <translation>Exekutiboa (7,25 x 10,5 in)</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Posta-txartela</translation>
    </message>
    <message>
        <source>Tabloid / ANSI B</source>
        <translation>Tabloidea / ANSI B</translation>
    </message>
    <message>
        <source>A5 Extra</source>
        <translation>A5 estra</translation>
    </message>
    <message>
        <source>B5 Extra</source>
        <translation>B5 estra</translation>
    </message>
    <message>
        <source>Envelope Invite</source>
        <translation>Gonbidapen-gutun-azala</translation>
    </message>
    <message>
        <source>Envelope Chou 3</source>
        <translation>Chou 3 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope Chou 4</source>
        <translation>Chou 4 gutun-azala</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Adierazpena</translation>
    </message>
    <message>
        <source>Fan-fold German (8.5 x 12 in)</source>
        <translation>Paper jarraitu alemaniarra (8,5 x 12 in)</translation>
    </message>
    <message>
        <source>Envelope PRC 10</source>
        <translation>PRC 10 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope Kaku 2</source>
        <translation>Kaku 2 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope Kaku 3</source>
        <translation>Kaku 3 gutun-azala</translation>
    </message>
    <message>
        <source>Envelope US 9</source>
        <translation>AEBko 9. gutun-azala</translation>
    </message>
    <message>
        <source>%1 x %2 in</source>
        <translation>%1 x %2 in</translation>
    </message>
    <message>
        <source>Super A</source>
        <translation>Super A</translation>
    </message>
    <message>
        <source>Super B</source>
        <translation>Super B</translation>
    </message>
    <message>
        <source>Fan-fold US (14.875 x 11 in)</source>
        <translation>Paper jarraitu estatubatuarra (14,875 x 11 in)</translation>
    </message>
    <message>
        <source>Fan-fold German Legal (8.5 x 13 in)</source>
        <translation>Paper jarraitu legal alemaniarra (8,5 x 13 in)</translation>
    </message>
    <message>
        <source>Custom (%1in x %2in)</source>
        <translation>Pertsonalizatua (%1in x %2in)</translation>
    </message>
    <message>
        <source>Custom (%1mm x %2mm)</source>
        <translation>Pertsonalizatua (%1mm x %2mm)</translation>
    </message>
    <message>
        <source>Custom (%1CC x %2CC)</source>
        <translation>Pertsonalizatua (%1CC x %2CC)</translation>
    </message>
    <message>
        <source>Custom (%1DD x %2DD)</source>
        <translation>Pertsonalizatua (%1DD x %2DD)</translation>
    </message>
    <message>
        <source>Custom (%1pc x %2pc)</source>
        <translation>Pertsonalizatua (%1pc x %2pc)</translation>
    </message>
    <message>
        <source>Custom (%1pt x %2pt)</source>
        <translation>Pertsonalizatua (%1pt x %2pt)</translation>
    </message>
    <message>
        <source>Letter Plus</source>
        <translation>Gutun plus</translation>
    </message>
    <message>
        <source>Tabloid Extra</source>
        <translation>Tabloide estra</translation>
    </message>
    <message>
        <source>Envelope Italian</source>
        <translation>Gutun-azal italiarra</translation>
    </message>
    <message>
        <source>Double Postcard</source>
        <translation>Posta-txartel bikoitza</translation>
    </message>
    <message>
        <source>Legal Extra</source>
        <translation>Legal estra</translation>
    </message>
    <message>
        <source>Folio (8.27 x 13 in)</source>
        <translation>Folioa (8,27 x 13 in)</translation>
    </message>
    <message>
        <source>Ledger / ANSI B</source>
        <translation>Liburu nagusia / ANSI B</translation>
    </message>
    <message>
        <source>JIS B10</source>
        <translation>JIS B10</translation>
    </message>
    <message>
        <source>Envelope Personal</source>
        <translation>Gutun-azal pertsonala</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Ados</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ez</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Bai</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Laguntza</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ireki</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Gorde</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abortatu</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplikatu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Itxi</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Berrezarri</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Saiatu berriro</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Leheneratu lehenetsiak</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Utzi</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ezikusi</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>E&amp;z guztiei</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Gorde dena</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Baztertu</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Bai &amp;guztiei</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>OK</source>
        <translation>Ados</translation>
    </message>
    <message>
        <source>Even Pages</source>
        <translation>Orrialde bikoitiak</translation>
    </message>
    <message>
        <source>Odd Pages</source>
        <translation>Orrialde bakoitiak</translation>
    </message>
    <message>
        <source>All Pages</source>
        <translation>Orrialde guztiak</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Inprimatu</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Inprimatu</translation>
    </message>
    <message>
        <source>&amp;Options &lt;&lt;</source>
        <translation>&amp;Aukerak &lt;&lt;</translation>
    </message>
    <message>
        <source>&amp;Options &gt;&gt;</source>
        <translation>&amp;Aukerak &gt;&gt;</translation>
    </message>
    <message>
        <source>Left to Right, Top to Bottom</source>
        <translation>Ezkerretik eskuinera, goitik behera</translation>
    </message>
    <message>
        <source>Right to Left, Bottom to Top</source>
        <translation>Eskuinetik ezkerrera, behetik gora</translation>
    </message>
    <message>
        <source>Left to Right, Bottom to Top</source>
        <translation>Ezkerretik eskuinera, behetik gora</translation>
    </message>
    <message>
        <source>Right to Left, Top to Bottom</source>
        <translation>Eskuinetik ezkerrera, goitik behera</translation>
    </message>
    <message>
        <source>Bottom to Top, Left to Right</source>
        <translation>Behetik gora, ezkerretik eskuinera</translation>
    </message>
    <message>
        <source>Bottom to Top, Right to Left</source>
        <translation>Behetik gora, eskuinetik ezkerrera</translation>
    </message>
    <message>
        <source>Top to Bottom, Left to Right</source>
        <translation>Goitik behera, ezkerretik eskuinera</translation>
    </message>
    <message>
        <source>Top to Bottom, Right to Left</source>
        <translation>Goitik behera, eskuinetik ezkerrera</translation>
    </message>
    <message>
        <source>Write PDF file</source>
        <translation>Idatzi PDF fitxategia</translation>
    </message>
    <message>
        <source>1 (1x1)</source>
        <translation>1 (1x1)</translation>
    </message>
    <message>
        <source>2 (2x1)</source>
        <translation>2 (2x1)</translation>
    </message>
    <message>
        <source>4 (2x2)</source>
        <translation>4 (2x2)</translation>
    </message>
    <message>
        <source>6 (2x3)</source>
        <translation>6 (2x3)</translation>
    </message>
    <message>
        <source>9 (3x3)</source>
        <translation>9 (3x3)</translation>
    </message>
    <message>
        <source>16 (4x4)</source>
        <translation>16 (4x4)</translation>
    </message>
    <message>
        <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
        <translation>«Orrialdeak orriko» eta «Orrialde multzoa» aukerak ezin dira batera erabili.
Desaktibatu bietako bat.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to overwrite it?</source>
        <translation>%1 badago lehendik ere.
Gainidatzi nahi duzu?</translation>
    </message>
    <message>
        <source>Local file</source>
        <translation>Fitxategi lokala</translation>
    </message>
    <message>
        <source>Print to File (PDF)</source>
        <translation>Inprimatu fitxategian (PDF)</translation>
    </message>
    <message>
        <source>Print To File ...</source>
        <translation>Inprimatu fitxategian...</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatikoa</translation>
    </message>
    <message>
        <source>The 'From' value cannot be greater than the 'To' value.</source>
        <translation>«Nondik» balioa ezin da «Nora» balioa baino handiagoa izan.</translation>
    </message>
    <message>
        <source>%1 is a directory.
Please choose a different file name.</source>
        <translation>%1 karpeta bat da.
Aukeratu beste fitxategi-izen bat.</translation>
    </message>
    <message>
        <source>File %1 is not writable.
Please choose a different file name.</source>
        <translation>Ezin da %1 fitxategian idatzi.
Aukeratu beste fitxategi-izen bat.</translation>
    </message>
    <message>
        <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
        <translation>%1 ez dago ondo idatzita. Erabili «,» tarteak eta orrialdeak bereizteko eta «-» tarteak zehazteko, eta ziurtatu tarteak ez direla elkarrekin gurutzatzen.</translation>
    </message>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Alde biko inprimatzearen ezarpenak kontraesanean</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Orrialdeak gaizki zehaztuta</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>Alde biko inprimatzearen ezarpenak kontraesanean daude. Konpondu nahi dituzu?</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesDialog</name>
    <message>
        <source>Job Options</source>
        <translation>Lanaren aukerak</translation>
    </message>
    <message>
        <source>Printer Properties</source>
        <translation>Inprimagailuaren propietateak</translation>
    </message>
    <message>
        <source>Advanced Option Conflicts</source>
        <translation>Aukera aurreratuak kontraesanean</translation>
    </message>
    <message>
        <source>Page Setup Conflicts</source>
        <translation>Orrialdearen ezarpenak kontraesanean</translation>
    </message>
    <message>
        <source>There are conflicts in page setup options. Do you want to fix them?</source>
        <translation>Orrialdearen ezarpenak kontraesanean daude. Konpondu nahi dituzu?</translation>
    </message>
    <message>
        <source>There are conflicts in some advanced options. Do you want to fix them?</source>
        <translation>Aukera aurreratu batzuk kontraesanean daude. Konpondu nahi dituzu?</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Form</source>
        <translation>Inprimakia</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Orrialdea</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Aurreratua</translation>
    </message>
    <message>
        <source>There are conflicts in some options. Please fix them.</source>
        <translation>Aukera batzuk kontraesanean daude. Konpondu itzazu.</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>to</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Inprimakia</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Bat ere ez</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kolorea</translation>
    </message>
    <message>
        <source>Print all</source>
        <translation>Inprimatu dena</translation>
    </message>
    <message>
        <source>Current Page</source>
        <translation>Uneko orrialdea</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Hautapena</translation>
    </message>
    <message>
        <source>Long side</source>
        <translation>Alde luzea</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopiak</translation>
    </message>
    <message>
        <source>Print range</source>
        <translation>Inprimatzeko tartea</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Kolore modua</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Aukerak</translation>
    </message>
    <message>
        <source>Output Settings</source>
        <translation>Irteeraren ezarpenak</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Alderantziz</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Gris-eskala</translation>
    </message>
    <message>
        <source>Short side</source>
        <translation>Alde laburra</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Tartekatu</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Kopiak:</translation>
    </message>
    <message>
        <source>Pages from</source>
        <translation>Orrialdeak:</translation>
    </message>
    <message>
        <source>Page Set:</source>
        <translation>Orrialde multzoa:</translation>
    </message>
    <message>
        <source>Duplex Printing</source>
        <translation>Alde bietan inprimatzea</translation>
    </message>
    <message>
        <source>Double Sided Printing</source>
        <translation>Alde bietan inprimatzea</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Koadernatzea alde luzean</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Koadernatzea alde laburrean</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ez</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Orrialdeak</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Zehaztu orrialdeak edo tarteak komaz bereizita. Tarte bat marratxo batez bereizitako bi zenbakirekin adierazten da. Adib.: 3,5-7,9 idatziz gero 3, 5, 6, 7 eta 9. orrialdeak inprimatzen dira.</translation>
    </message>
</context>
<context>
    <name>QPrintWidget</name>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Inprimakia</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Mota:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Izena:</translation>
    </message>
    <message>
        <source>Output &amp;file:</source>
        <translation>Irteerako &amp;fitxategia:</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;Propietateak</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aurrebista</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Inprimagailua</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Kokalekua:</translation>
    </message>
</context>
<context>
    <name>QProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Utzi</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Top</source>
        <translation>Goia</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Korritu behera</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Korritu hona</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Korritu ezkerrera</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Behea</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Orri bat gora</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Orri bat eskuinera</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Korritu gora</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Korritu eskuinera</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Ezkerreko ertza</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Orri bat behera</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Orri bat ezkerrera</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Eskuineko ertza</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ktrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maius</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Zenb</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Kontrol</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Atzera-tabulazioa</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esk</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Eskape</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Sartu</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Itzuli</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Zuriunea</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Atzera-tekla</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Txert</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Txertatu</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Ezab</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ezabatu</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Hasiera</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Amaiera</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Gora</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Behera</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Ezkerra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Eskuina</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>OrriGora</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>OrriBehera</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Orria gora</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Orria behera</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Inprimatu</translation>
    </message>
    <message>
        <source>Print Screen</source>
        <translation>Inprimatu pantaila</translation>
    </message>
    <message>
        <source>SysReq</source>
        <translation>SistEsk</translation>
    </message>
    <message>
        <source>System Request</source>
        <translation>Sistema-eskaera</translation>
    </message>
    <message>
        <source>CapsLock</source>
        <translation>BlokMaius</translation>
    </message>
    <message>
        <source>Caps Lock</source>
        <translation>Blok Maius</translation>
    </message>
    <message>
        <source>NumLock</source>
        <translation>BlokZenb</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Blok Zenb</translation>
    </message>
    <message>
        <source>Number Lock</source>
        <translation>Zenbakien blokeoa</translation>
    </message>
    <message>
        <source>ScrollLock</source>
        <translation>BlokKorr</translation>
    </message>
    <message>
        <source>Scroll Lock</source>
        <translation>Blok Korr</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menua</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Laguntza</translation>
    </message>
    <message>
        <source>F%1</source>
        <translation>F%1</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Bai</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ez</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Utzi</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ireki</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Gorde</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Itxi</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Irten</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Berria</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Bilatu</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ebaki</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiatu</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Itsatsi</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desegin</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Berregin</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atzera</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Aurrera</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Gelditu</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Freskatu</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Bilatu</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Hautatu</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Garbitu</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>Korritu ezkerrera</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Korritu eskuinera</translation>
    </message>
</context>
<context>
    <name>QWhatsThisAction</name>
    <message>
        <source>What's This?</source>
        <translation>Zer da hau?</translation>
    </message>
</context>
<context>
    <name>QWidget</name>
    <message>
        <source>*</source>
        <translation>*</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ebaki</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiatu</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Berregin</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desegin</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Itsatsi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ezabatu</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Hautatu dena</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiatu e&amp;stekaren helbidea</translation>
    </message>
</context>
</TS>
