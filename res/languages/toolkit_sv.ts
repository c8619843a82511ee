<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv">
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Filmapp</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Genväg</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Okänd</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>Step &amp;down</source>
        <translation>Stega &amp;ner</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Stega upp</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Markera allt</translation>
    </message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>Decrease</source>
        <translation>Minska</translation>
    </message>
    <message>
        <source>Decrease the value</source>
        <translation>Minskar värdet</translation>
    </message>
    <message>
        <source>Goes back a page</source>
        <translation>Går tillbaka en sida</translation>
    </message>
    <message>
        <source>Goes to the next page</source>
        <translation>Går till nästa sida</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Öka</translation>
    </message>
    <message>
        <source>Increase the value</source>
        <translation>Ökar värdet</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Nästa sida</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>Tryck</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Föregående sida</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>Rulla nedåt</translation>
    </message>
    <message>
        <source>Scroll Left</source>
        <translation>Rulla åt vänster</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Rulla åt höger</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>Rulla uppåt</translation>
    </message>
    <message>
        <source>Scrolls down</source>
        <translation>Rullar nedåt</translation>
    </message>
    <message>
        <source>Scrolls to the left</source>
        <translation>Rullar åt vänster</translation>
    </message>
    <message>
        <source>Scrolls to the right</source>
        <translation>Rullar åt höger</translation>
    </message>
    <message>
        <source>Scrolls up</source>
        <translation>Rullar uppåt</translation>
    </message>
    <message>
        <source>SetFocus</source>
        <translation>Ge fokus</translation>
    </message>
    <message>
        <source>Sets the focus</source>
        <translation>Ger fokus</translation>
    </message>
    <message>
        <source>ShowMenu</source>
        <translation>Visa meny</translation>
    </message>
    <message>
        <source>Shows the menu</source>
        <translation>Visar menyn</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>Växla</translation>
    </message>
    <message>
        <source>Toggles the state</source>
        <translation>Växlar läget</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Utför åtgärden</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>False</source>
        <translation>Falskt</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Sant</translation>
    </message>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Öppna listan med val</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>What&apos;s This?</source>
        <translation>Vad är det här?</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QErrorMessage</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Show this message again</source>
        <translation>&amp;Visa meddelandet igen</translation>
    </message>
    <message>
        <source>Critical Error:</source>
        <translation>Kritiskt fel:</translation>
    </message>
    <message>
        <source>Debug Message:</source>
        <translation>Felsökningsmeddelande:</translation>
    </message>
    <message>
        <source>Fatal Error:</source>
        <translation>Ödesdigert fel:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Information:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Varning:</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öppna</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Spara</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Visa </translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>”%1” är skrivskyddad.
Vill du ändå ta bort den?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Vill du verkligen ta bort ”%1”?</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Platser och bokmärken</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Fil&amp;namn:</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Vänster</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Upp</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Ny mapp</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Överordnad mapp</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Ny mapp</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Leta i:</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Höger</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Skapa en ny mapp</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Filer av typen:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Sök mapp</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Visa &amp;dolda filer</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Spara som</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Mappen hittas inte.
Kontrollera att namnet är rätt.</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Sidopanel</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Listvy</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Välj</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alla filer (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alla filer (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Mappar</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Byt namn</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Mappen kunde inte tas bort.</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Mapp:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 finns redan.
Vill du ersätta den?</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Framåt</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Gå framåt</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Gå till den överordnade mappen</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Senaste platser</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Gå tillbaka</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Byt till detaljvy</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Skapa ny mapp</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detaljvy</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Filen hittas inte.
Kontrollera att namnet är rätt.</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Byt till listvy</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Kind</source>
        <translation>Slag</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Min dator</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Dator</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Ändrad</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Spara</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Avbryt</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;täng</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Stäng utan att spara</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Klipp u&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gör om</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ångra</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>K&amp;listra in</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markera allt</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Visa detaljer...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Dölj detaljer...</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Återställ standardvärden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorera</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;ej till alla</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Spara alla</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Kasta</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ja till &amp;alla</translation>
    </message>
</context>
<context>
    <name>QProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Bottom</source>
        <translation>Längst ner</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Vänsterkanten</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>En sida ner</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>En sida åt vänster</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>En sida åt höger</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>En sida upp</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Högerkanten</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rulla nedåt</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Rulla hit</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rulla åt vänster</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rulla åt höger</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rulla uppåt</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Längst upp</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Up</source>
        <translation>Upp</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ner</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Skift</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mellanslag</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retur</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backsteg</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Num</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabb</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Baktabb</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Ins</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>PgUp</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>PgDn</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>PrtSc</translation>
    </message>
    <message>
        <source>Print Screen</source>
        <translation>Print Screen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>SysReq</source>
        <translation>SysRq</translation>
    </message>
    <message>
        <source>System Request</source>
        <translation>SysRq</translation>
    </message>
    <message>
        <source>CapsLock</source>
        <translation>Caps Lock</translation>
    </message>
    <message>
        <source>Caps Lock</source>
        <translation>Caps Lock</translation>
    </message>
    <message>
        <source>NumLock</source>
        <translation>Num Lock</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Num Lock</translation>
    </message>
    <message>
        <source>Number Lock</source>
        <translation>Num Lock</translation>
    </message>
    <message>
        <source>ScrollLock</source>
        <translation>Scroll Lock</translation>
    </message>
    <message>
        <source>Scroll Lock</source>
        <translation>Scroll Lock</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Meny</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Framåt</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Startsida</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriter</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nytt</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiera</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Klipp ut</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Klistra in</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Välj</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zooma in</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zooma ut</translation>
    </message>
    <message>
        <source>Volume Down</source>
        <translation>Sänk volymen</translation>
    </message>
    <message>
        <source>Volume Up</source>
        <translation>Höj volymen</translation>
    </message>
    <message>
        <source>Volume Mute</source>
        <translation>Ljud av</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Ring</translation>
    </message>
    <message>
        <source>Hangup</source>
        <translation>Lägg på</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Kalkylator</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Mata ut</translation>
    </message>
    <message>
        <source>Power Off</source>
        <translation>Stäng av</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Vänteläge</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>F%1</source>
        <translation>F%1</translation>
    </message>
</context>
<context>
    <name>QSpiAccessibleBridge</name>
    <message>
        <source>alert message</source>
        <translation>varning</translation>
    </message>
    <message>
        <source>application</source>
        <translation>program</translation>
    </message>
    <message>
        <source>button menu</source>
        <translation>menyknapp</translation>
    </message>
    <message>
        <source>cell</source>
        <translation>cell</translation>
    </message>
    <message>
        <source>check box</source>
        <translation>kryssruta</translation>
    </message>
    <message>
        <source>column</source>
        <translation>kolumn</translation>
    </message>
    <message>
        <source>column header</source>
        <translation>kolumnrubrik</translation>
    </message>
    <message>
        <source>combo box</source>
        <translation>kombinationsruta</translation>
    </message>
    <message>
        <source>dialog</source>
        <translation>dialogruta</translation>
    </message>
    <message>
        <source>document</source>
        <translation>dokument</translation>
    </message>
    <message>
        <source>frame</source>
        <translation>ram</translation>
    </message>
    <message>
        <source>graphic</source>
        <translation>bild</translation>
    </message>
    <message>
        <source>heading</source>
        <translation>rubrik</translation>
    </message>
    <message>
        <source>label</source>
        <translation>etikett</translation>
    </message>
    <message>
        <source>link</source>
        <translation>länk</translation>
    </message>
    <message>
        <source>list</source>
        <translation>lista</translation>
    </message>
    <message>
        <source>list item</source>
        <translation>listpost</translation>
    </message>
    <message>
        <source>menu bar</source>
        <translation>menyrad</translation>
    </message>
    <message>
        <source>menu item</source>
        <translation>menyval</translation>
    </message>
    <message>
        <source>notification</source>
        <translation>avisering</translation>
    </message>
    <message>
        <source>page tab</source>
        <translation>flik</translation>
    </message>
    <message>
        <source>page tab list</source>
        <translation>flikrad</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>panel</translation>
    </message>
    <message>
        <source>paragraph</source>
        <translation>stycke</translation>
    </message>
    <message>
        <source>popup menu</source>
        <translation>snabbmeny</translation>
    </message>
    <message>
        <source>progress bar</source>
        <translation>förloppsmätare</translation>
    </message>
    <message>
        <source>push button</source>
        <translation>knapp</translation>
    </message>
    <message>
        <source>radio button</source>
        <translation>alternativknapp</translation>
    </message>
    <message>
        <source>row</source>
        <translation>rad</translation>
    </message>
    <message>
        <source>row header</source>
        <translation>radrubrik</translation>
    </message>
    <message>
        <source>scroll bar</source>
        <translation>rullningslist</translation>
    </message>
    <message>
        <source>separator</source>
        <translation>avskiljare</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>skjutreglage</translation>
    </message>
    <message>
        <source>spin box</source>
        <translation>rotationsruta</translation>
    </message>
    <message>
        <source>splitter</source>
        <translation>delare</translation>
    </message>
    <message>
        <source>status bar</source>
        <translation>statusrad</translation>
    </message>
    <message>
        <source>table</source>
        <translation>tabell</translation>
    </message>
    <message>
        <source>text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>text caret</source>
        <translation>markör</translation>
    </message>
    <message>
        <source>title bar</source>
        <translation>namnlist</translation>
    </message>
    <message>
        <source>tool bar</source>
        <translation>verktygsfält</translation>
    </message>
    <message>
        <source>tool tip</source>
        <translation>verktygstips</translation>
    </message>
    <message>
        <source>tree</source>
        <translation>träd</translation>
    </message>
    <message>
        <source>tree item</source>
        <translation>trädpost</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>okänd</translation>
    </message>
    <message>
        <source>web document</source>
        <translation>webbdokument</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>Rulla åt vänster</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Rulla åt höger</translation>
    </message>
</context>
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Ångra %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Gör om %1</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>Insert Unicode control character</source>
        <translation>Infoga Unicode-styrtecken</translation>
    </message>
    <message>
        <source>LRM Left-to-right mark</source>
        <translation>LRM Vänster till höger-märke</translation>
    </message>
    <message>
        <source>RLM Right-to-left mark</source>
        <translation>RLM Höger till vänster-märke</translation>
    </message>
    <message>
        <source>ZWJ Zero width joiner</source>
        <translation>ZWJ Sammanbindning utan bredd</translation>
    </message>
    <message>
        <source>ZWNJ Zero width non-joiner</source>
        <translation>ZWNJ Icke-sammanbindning utan bredd</translation>
    </message>
    <message>
        <source>ZWSP Zero width space</source>
        <translation>ZWSP Mellanslag utan bredd</translation>
    </message>
    <message>
        <source>LRE Start of left-to-right embedding</source>
        <translation>LRE Början på inbäddning vänster till höger</translation>
    </message>
    <message>
        <source>RLE Start of right-to-left embedding</source>
        <translation>RLE Början på inbäddning höger till vänster</translation>
    </message>
    <message>
        <source>LRO Start of left-to-right override</source>
        <translation>LRO Början på tvingad riktning vänster till höger</translation>
    </message>
    <message>
        <source>RLO Start of right-to-left override</source>
        <translation>RLO Början på tvingad riktning höger till vänster</translation>
    </message>
    <message>
        <source>PDF Pop directional formatting</source>
        <translation>PDF Slut på riktningsformatering</translation>
    </message>
    <message>
        <source>LRI Left-to-right isolate</source>
        <translation>LRI Isolering vänster till höger</translation>
    </message>
    <message>
        <source>RLI Right-to-left isolate</source>
        <translation>RLI Isolering höger till vänster</translation>
    </message>
    <message>
        <source>FSI First strong isolate</source>
        <translation>FSI Isolering efter första starka tecknet</translation>
    </message>
    <message>
        <source>PDI Pop directional isolate</source>
        <translation>PDI Slut på riktningsisolering</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Klipp u&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gör om</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ångra</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>K&amp;listra in</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markera allt</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiera &amp;länkadress</translation>
    </message>
</context>
</TS>
