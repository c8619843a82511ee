<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Calendar</name>
    <message>
        <source>Previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
</context>
<context>
    <name>Colours</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>Marineblau</translation>
    </message>
    <message>
        <source>Azure</source>
        <translation>Azurblau</translation>
    </message>
    <message>
        <source>Midnight blue</source>
        <translation>Mitternachtsblau</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>Weinrot</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Pale pink</source>
        <translation>Blassrosa</translation>
    </message>
    <message>
        <source>Slate blue</source>
        <translation>Schieferblau</translation>
    </message>
    <message>
        <source>Dark plum</source>
        <translation>Dunkelviolett</translation>
    </message>
    <message>
        <source>Pale cyan</source>
        <translation>Blasscyan</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>Hellgrün</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Oliv</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Blassblau</translation>
    </message>
    <message>
        <source>Periwinkle</source>
        <translation>Blauviolett</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Pale orange</source>
        <translation>Blassorange</translation>
    </message>
    <message>
        <source>Dusky blue</source>
        <translation>Taubenblau</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Leaf green</source>
        <translation>Laubgrün</translation>
    </message>
    <message>
        <source>Pale green</source>
        <translation>Blassgrün</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavendel</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Mauve</source>
        <translation>Malve</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Purpur</translation>
    </message>
    <message>
        <source>Amber</source>
        <translation>Bernstein</translation>
    </message>
    <message>
        <source>Sage</source>
        <translation>Salbei</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Raspberry</source>
        <translation>Himbeere</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Dunkelgrün</translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>Prints a line per list, in the order of their names: name TAB number of rows.

  --json               name, rows, icon and columns of each list
</source>
        <translation>Gibt je Liste eine Zeile aus, nach Namen geordnet: Name TAB Zahl der Zeilen.

  --json               Name, Zeilen, Symbol und Spalten jeder Liste
</translation>
    </message>
    <message>
        <source>Makes a list and prints nothing. Its first columns are Name and Quantity.

  --column NAME:TYPE   adds a column; TYPE is string, checkbox, price, integer, date or
                       expiry (which needs no NAME). May be given several times.
  --warn-count N       warns of rows whose quantity is N or less
  --warn-expiry        warns of rows whose expiry date is reached
  --icon N             icon 0 to 42
  --create             makes the data file if there is none
</source>
        <translation>Legt eine Liste an und gibt nichts aus. Ihre ersten Spalten sind Name und
Quantity.

  --column NAME:TYPE   fügt eine Spalte hinzu; TYPE ist string, checkbox,
                       price, integer, date oder expiry (das keinen NAME
                       braucht). Mehrmals möglich.
  --warn-count N       warnt vor Zeilen, deren Anzahl N oder weniger ist
  --warn-expiry        warnt vor Zeilen, deren Ablaufdatum erreicht ist
  --icon N             Symbol 0 bis 42
  --create             legt die Datendatei an, wenn es keine gibt
</translation>
    </message>
    <message>
        <source>  --where CONDITION    only rows that meet it: &quot;COLUMN CONDITION VALUE&quot;, as in
                       &quot;Name contains tea&quot;, &quot;Quantity &lt; 3&quot;, &quot;Opened = Checked&quot;.
                       Conditions are those of the program&apos;s filters, by their words or
                       as = != &gt; &gt;= &lt; &lt;=. As there, != on text, numbers and prices finds
                       what = finds. Numbers are read as they are shown. May be given
                       several times: all must hold.
</source>
        <translation>  --where CONDITION    nur Zeilen, die sie erfüllen: „COLUMN CONDITION VALUE“,
                       wie in &quot;Name contains tea&quot;, &quot;Quantity &lt; 3&quot;,
                       &quot;Opened = Checked&quot;. Die Bedingungen sind die der
                       Filter, mit ihren englischen Wörtern oder
                       = != &gt; &gt;= &lt; &lt;=. Wie dort findet
                       != bei Text, Zahlen und Preisen dasselbe wie =. Zahlen
                       werden gelesen, wie sie gezeigt werden. Mehrmals
                       möglich: alle müssen gelten.
</translation>
    </message>
    <message>
        <source>Prints a line of column names, then the rows in the order of names, with TAB between
fields. Control characters in texts are shown as blanks.

  --sort COLUMN        in ascending order of a column
  --descending         the other way round
  --no-header          without the line of column names
  --json               an object per row; dates as YYYY-MM-DD, missing values as null
</source>
        <translation>Gibt eine Zeile mit den Namen der Spalten aus, dann die Zeilen nach Namen
geordnet, mit TAB zwischen den Feldern. Steuerzeichen in Texten werden zu
Leerzeichen.

  --sort COLUMN        nach einer Spalte aufsteigend geordnet
  --descending         andersherum
  --no-header          ohne die Zeile mit den Namen der Spalten
  --json               ein Objekt je Zeile; Datumsangaben als YYYY-MM-DD,
                       fehlende Werte als null
</translation>
    </message>
    <message>
        <source>Looks for a text in every column of every list, whatever its case and accents, and prints a
line per value that has it: list TAB row TAB column TAB value.

  --json               list, row, column and text of each
</source>
        <translation>Sucht einen Text in allen Spalten aller Listen, ohne auf Groß- und
Kleinschreibung und Akzente zu achten, und gibt je Fund eine Zeile aus: Liste
TAB Zeile TAB Spalte TAB Wert.

  --json               Liste, Zeile, Spalte und Text jedes Fundes
</translation>
    </message>
    <message>
        <source>Writes the rows as text, as Export List does: UTF-16, TAB between fields, CR LF after each
row. Without FILE, or with -, to standard output. An existing FILE is replaced.

  --dates iso          dates as YYYY-MM-DD, which every locale reads alike
  --format NAME        csv or tsv, a table for other programs in UTF-8 behind a line of column
                       names: dates as YYYY-MM-DD, a point before decimals, true and false;
                       json, as show prints it; or html, a page to read
  --all DIR            every list into a folder, which is made if need be: a file for each, as csv
                       unless told otherwise, and lists.json, which tells of them
</source>
        <translation>Schreibt die Zeilen als Text, wie „Liste exportieren“: UTF-16, TAB zwischen den
Feldern, CR LF nach jeder Zeile. Ohne FILE oder mit - auf die Standardausgabe.
Eine vorhandene FILE wird ersetzt.

  --dates iso          Datumsangaben als YYYY-MM-DD, die überall gleich
                       gelesen werden
  --format NAME        csv oder tsv, eine Tabelle für andere Programme in UTF-8
                       mit den Namen der Spalten in der ersten Zeile: Datumsangaben
                       als YYYY-MM-DD, Dezimalpunkt, true und false; json, wie show
                       es ausgibt; oder html, eine Seite zum Lesen
  --all DIR            alle Listen in einen Ordner, der nötigenfalls angelegt
                       wird: je Liste eine Datei, csv, wenn nichts anderes
                       gesagt ist, und lists.json, das sie beschreibt
</translation>
    </message>
    <message>
        <source>Adds a row for each line of a text file, as Import List does, and prints how many came in.
FILE - is standard input. Each line must end in CR LF, the last one too.

  --columns &quot;A,B&quot;      the columns that the fields of a line fill; those not named follow
                       in the list&apos;s order, which is also what holds without this option
  --encoding NAME      what the file is in: utf-8, utf-16, or the number of a code page such
                       as 1252
  --format NAME        csv or tsv, tables as export writes them: the first line names columns;
                       of csv comma, semicolon or TAB part the fields. All rows come in, or none
  --match COLUMN       of a table: changes the row that has the same value in this column, and
                       adds one where none has
  --all DIR            makes every list that lists.json in a folder tells of, and prints them
  --create             with --all: makes the data file if there is none
  --dry-run            stores nothing, prints how many rows would come in
</source>
        <translation>Fügt je Zeile einer Textdatei eine Zeile hinzu, wie „Liste importieren“, und
gibt aus, wie viele es sind. FILE - ist die Standardeingabe. Jede Zeile muss
mit CR LF enden, auch die letzte.

  --columns &quot;A,B&quot;      die Spalten, die die Felder einer Zeile füllen; nicht
                       genannte folgen in der Reihenfolge der Liste, die auch
                       ohne diese Option gilt
  --encoding NAME      worin die Datei geschrieben ist: utf-8, utf-16 oder die
                       Nummer einer Codepage wie 1252
  --format NAME        csv oder tsv, Tabellen, wie export sie schreibt: die
                       erste Zeile nennt Spalten; in csv trennen Komma,
                       Semikolon oder TAB die Felder. Alle Zeilen kommen hinein
                       oder keine
  --match COLUMN       bei einer Tabelle: ändert die Zeile, die in dieser
                       Spalte denselben Wert hat, und fügt eine hinzu, wo es
                       keine gibt
  --all DIR            legt jede Liste an, die lists.json in einem Ordner
                       beschreibt, und gibt sie aus
  --create             mit --all: legt die Datendatei an, wenn es keine gibt
  --dry-run            speichert nichts, gibt aus, wie viele Zeilen es wären
</translation>
    </message>
    <message>
        <source>Prints a line per total of a number or price column: name TAB total, with a point before
decimals.

  --json               name and total of each
</source>
        <translation>Gibt je Summe einer Zahlen- oder Preisspalte eine Zeile aus: Name TAB Summe,
mit Dezimalpunkt.

  --json               Name und Summe jeder Spalte
</translation>
    </message>
    <message>
        <source>Prints rows of lists whose warnings are on: list TAB row TAB &quot;low&quot;, &quot;expired&quot; or the date
on which the row expires.

  --within DAYS        also rows that expire in so many days
  --json               list, row, state and count or date of each
  --ics                prints a calendar of all expiry dates instead, as iCalendar; with
                       --within only those until then
  --notify             prints nothing, but shows what is due since it was shown last, once a
                       day at most, as a notification of the desktop. A tap on that opens the
                       list; until then or until it is closed the command waits.

Exits with 3 if something is due, with 0 if nothing is.
</source>
        <translation>Gibt Zeilen von Listen aus, deren Warnungen an sind: Liste TAB Zeile TAB „low“,
„expired“ oder das Datum, an dem die Zeile abläuft.

  --within DAYS        auch Zeilen, die in so vielen Tagen ablaufen
  --json               Liste, Zeile, Zustand und Anzahl oder Datum
  --ics                gibt stattdessen einen Kalender aller Ablaufdaten als
                       iCalendar aus; mit --within nur die bis dahin
  --notify             gibt nichts aus, sondern zeigt höchstens einmal am Tag
                       als Benachrichtigung, was seit dem letzten Mal fällig
                       wurde. Ein Tippen darauf öffnet die Liste; bis dahin
                       oder bis sie geschlossen wird, wartet der Befehl.

Endet mit 3, wenn etwas fällig ist, sonst mit 0.
</translation>
    </message>
    <message>
        <source>Turns a notification each morning of what is due on or off, or prints whether it is on.
Needs systemd, whose timer quillory-reminders then runs &quot;quillory due --notify&quot;.
</source>
        <translation>Schaltet eine morgendliche Benachrichtigung über Fälliges ein oder aus, oder
gibt aus, ob sie an ist. Braucht systemd, dessen Timer quillory-reminders dann
„quillory due --notify“ ausführt.
</translation>
    </message>
    <message>
        <source>Adds a row with these values and prints 1. Numbers are read as they are shown, a checkbox is
Checked or Unchecked.

  --dry-run            stores nothing
</source>
        <translation>Fügt eine Zeile mit diesen Werten hinzu und gibt 1 aus. Zahlen werden gelesen,
wie sie gezeigt werden; ein Kästchen ist Checked oder Unchecked.

  --dry-run            speichert nichts
</translation>
    </message>
    <message>
        <source>Gives all rows that meet the conditions these values, or none of them if one cannot be
stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Gibt allen Zeilen, die die Bedingungen erfüllen, diese Werte, oder keiner, wenn
eine nicht gespeichert werden kann, und gibt aus, wie viele es sind.

  --dry-run            speichert nichts
</translation>
    </message>
    <message>
        <source>Counts all rows that meet the conditions up by +N or down by -N, or none of them if one
cannot be stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Zählt alle Zeilen, die die Bedingungen erfüllen, um +N hinauf oder um -N
hinunter, oder keine, wenn eine nicht gespeichert werden kann, und gibt aus,
wie viele es sind.

  --dry-run            speichert nichts
</translation>
    </message>
    <message>
        <source>Deletes all rows that meet the conditions, or none of them if one cannot be, and prints how
many there are.

  --dry-run            deletes nothing
</source>
        <translation>Löscht alle Zeilen, die die Bedingungen erfüllen, oder keine, wenn eine nicht
gelöscht werden kann, und gibt aus, wie viele es sind.

  --dry-run            löscht nichts
</translation>
    </message>
    <message>
        <source>Gives a list another name and prints nothing.

  --dry-run            stores nothing
</source>
        <translation>Gibt einer Liste einen anderen Namen und gibt nichts aus.

  --dry-run            speichert nichts
</translation>
    </message>
    <message>
        <source>Deletes a list with all its rows and prints how many these are.

  --dry-run            deletes nothing
</source>
        <translation>Löscht eine Liste mit allen Zeilen und gibt aus, wie viele es waren.

  --dry-run            löscht nichts
</translation>
    </message>
    <message>
        <source>Reads the whole data file. Prints &quot;ok&quot;, or what is wrong and exits with 1.
</source>
        <translation>Liest die ganze Datendatei. Gibt „ok“ aus, oder was nicht stimmt, und endet
dann mit 1.
</translation>
    </message>
    <message>
        <source>Writes a consistent copy of the data file, also while it is in use. FILE must not exist.
</source>
        <translation>Schreibt eine stimmige Kopie der Datendatei, auch während sie benutzt wird.
FILE darf es noch nicht geben.
</translation>
    </message>
    <message>
        <source>After each run that changed lists or rows of the configured data file a copy of it is kept,
the last three, or as many as KeptCopies=0...9 in the settings says, and older ones while
all together are no larger than 32 MB. They are dropped 90 days after the file is found to
be gone.

Without options prints a line per copy, the newest first: number TAB time TAB bytes, and
then a line per list that can be read from the data file itself, also if that is damaged:
salvage TAB list TAB rows TAB what is lost. Otherwise makes the new data file FILE, which
must not exist:

  --from N             from copy N
  --salvage            from what can still be read of the data file, and prints what that
                       is; the data file is only read
  --json               an object per copy and per list
</source>
        <translation>Nach jedem Lauf, der Listen oder Zeilen der eingestellten Datendatei geändert
hat, wird eine Kopie aufbewahrt: die letzten drei, oder so viele, wie
KeptCopies=0...9 in den Einstellungen sagt, und ältere, solange alle zusammen
höchstens 32 MB groß sind. Ist die Datei verschwunden, werden sie 90 Tage später
gelöscht.

Ohne Optionen gibt restore je Kopie eine Zeile aus, die neueste zuerst: Nummer
TAB Zeit TAB Bytes, und dann je Liste, die aus der Datendatei selbst lesbar
ist, auch wenn sie beschädigt ist, eine Zeile: salvage TAB Liste TAB Zeilen TAB
was verloren ist. Sonst legt es die neue Datendatei FILE an, die es noch nicht
geben darf:

  --from N             aus Kopie N
  --salvage            aus dem, was von der Datendatei noch lesbar ist, und
                       gibt aus, was das ist; die Datendatei wird nur gelesen
  --json               ein Objekt je Kopie und je Liste
</translation>
    </message>
    <message>
        <source>none so far</source>
        <translation>bisher keine</translation>
    </message>
    <message>
        <source>  --data FILE          works on another data file than the configured one (%1)

Here dates are written %2 and numbers %3, but in text files with a point and no
groups. Text files are written in UTF-16 behind a byte-order mark, and read in code page
%4 where there is none.
</source>
        <extracomment>%1 is the data file, %2 such as dd/MM/yyyy, %3 such as 1,234.50, %4 such as 1252.</extracomment>
        <translation>  --data FILE          arbeitet mit einer anderen Datendatei als der
                       eingestellten (%1)

Ein Datum wird hier %2 geschrieben, Zahlen %3, in Textdateien aber mit Punkt und
ohne Gruppen. Textdateien werden in UTF-16 hinter einer
Bytereihenfolge-Marke geschrieben und, wo keine steht, in Codepage %4 gelesen.
</translation>
    </message>
    <message>
        <source>
Opens the window, showing LIST if it is named. The commands work without it:

</source>
        <translation>
Öffnet das Fenster und zeigt LIST, wenn sie genannt ist. Die Befehle brauchen
es nicht:

</translation>
    </message>
    <message>
        <source>
  --new-list           opens the window with the page of a new list
  --help               help, on a command if one is named
  --version            the version
</source>
        <translation>
  --new-list           öffnet das Fenster mit der Seite einer neuen Liste
  --help               Hilfe, zu einem Befehl, wenn einer genannt ist
  --version            die Version
</translation>
    </message>
    <message>
        <source>
Exit status: 0 done, 1 failed, 2 wrong usage, 3 something is due.
</source>
        <translation>
Endet mit: 0 getan, 1 misslungen, 2 falsch aufgerufen, 3 etwas ist fällig.
</translation>
    </message>
    <message>
        <source>Writes a list to print or to send: its rows with what runs low and what is expired marked,
totals, and drawings of what expires in the next twelve months and of what fewest are left.
Without FILE, or with -, to standard output. An existing FILE is replaced.

  --all                all lists in one report
  --format NAME        pdf, or html for one page that needs no other file; without it what
                       the name of FILE ends in, or pdf
</source>
        <translation>Schreibt eine Liste zum Drucken oder Verschicken: ihre Zeilen, in denen Knappes und
Abgelaufenes bezeichnet ist, Summen und Zeichnungen dessen, was in den nächsten
zwölf Monaten abläuft und wovon am wenigsten da ist. Ohne FILE oder mit - auf die
Standardausgabe. Eine vorhandene FILE wird ersetzt.

  --all                alle Listen in einem Bericht
  --format NAME        pdf, oder html für eine Seite, die keine andere Datei braucht;
                       sonst, worauf der Name von FILE endet, oder pdf
</translation>
    </message>
    <message>
        <source>Prints what merging OTHER, another device&apos;s copy of the data file, would do, as merge prints it.
Changes nothing. Exits with 3 if OTHER has something that the data file has not.

  --base FILE          what both come from, where no kept copy is
  --json               an object per line
</source>
        <translation>Zeigt, was das Zusammenführen mit OTHER täte, der Kopie der Datendatei von einem anderen Gerät,
wie merge es zeigt. Ändert nichts. Endet mit 3, wenn OTHER etwas hat, was der Datendatei fehlt.

  --base FILE          woraus beide entstanden sind, wenn keine Kopie davon da ist
  --json               ein Objekt je Zeile
</translation>
    </message>
    <message>
        <source>Brings the data file and OTHER, another device&apos;s copy of it, together in the data file. OTHER
is only read. Prints a line per thing that came or went, and per value that both had changed:
what TAB list TAB row TAB column TAB value TAB other value. Both files are kept as copies
before.

  --base FILE          what both come from, where no kept copy is
  --dry-run            stores nothing
  --json               an object per line
</source>
        <translation>Führt die Datendatei und OTHER, ihre Kopie von einem anderen Gerät, in der Datendatei zusammen.
OTHER wird nur gelesen. Zeigt eine Zeile für alles, was kam oder ging, und für jeden Wert, den
beide geändert hatten: was TAB Liste TAB Zeile TAB Spalte TAB Wert TAB anderer Wert. Vorher
werden beide Dateien als Kopien aufgehoben.

  --base FILE          woraus beide entstanden sind, wenn keine Kopie davon da ist
  --dry-run            speichert nichts
  --json               ein Objekt je Zeile
</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>Enable row colour when count is less than or equal to</source>
        <translation>Zeile einfärben, wenn die Anzahl höchstens so groß ist:</translation>
    </message>
    <message>
        <source>Enable row colour when expiry date is reached to colour</source>
        <translation>Zeile einfärben, wenn das Ablaufdatum erreicht ist, in</translation>
    </message>
    <message>
        <source>Display list using landscape mode</source>
        <translation>Listen im Querformat zeigen</translation>
    </message>
    <message>
        <source>Landscape (right-handed)</source>
        <translation>Querformat (rechte Hand)</translation>
    </message>
    <message>
        <source>Landscape (left-handed)</source>
        <translation>Querformat (linke Hand)</translation>
    </message>
    <message>
        <source>Use alternate row colour</source>
        <translation>Jede zweite Zeile tönen</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
</context>
<context>
    <name>DataFileOpener</name>
    <message>
        <source>The data file is damaged. There is a good copy of %1.

Do you want to go on with it? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Die Datendatei ist beschädigt. Es gibt eine gute Kopie vom %1.

Mit ihr weitermachen? Sie wird in eine neue Datei geschrieben; die beschädigte bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The new file could not be written. Error: %1</source>
        <translation>Die neue Datei konnte nicht geschrieben werden. Fehler: %1</translation>
    </message>
    <message>
        <source>Beside the data file lay the journal of another file. It is kept as %1.</source>
        <translation>Neben der Datendatei lag das Journal einer anderen Datei. Es ist aufbewahrt als %1.</translation>
    </message>
    <message>
        <source>Another program has written into the data file. What it holds now: %1, %2.

Do you want to go on with that? It is written to a new file; the old one stays as it is.</source>
        <translation>Ein anderes Programm hat in die Datendatei geschrieben. Ihr Inhalt jetzt: %1, %2.

Damit weitermachen? Er wird in eine neue Datei geschrieben; die alte bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file: %1, %2.

Do you want to go on with that? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Was von der beschädigten Datei noch lesbar ist: %1, %2.

Damit weitermachen? Es wird in eine neue Datei geschrieben; die beschädigte bleibt, wie sie ist.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s)</source>
        <translation>
            <numerusform>%n Liste</numerusform>
            <numerusform>%n Listen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Deletions</name>
    <message>
        <source>The list &apos;%1&apos; was deleted.</source>
        <translation>Die Liste „%1“ wurde gelöscht.</translation>
    </message>
    <message>
        <source>All rows of &apos;%1&apos; were deleted.</source>
        <translation>Alle Zeilen von „%1“ wurden gelöscht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was deleted.</source>
        <translation>„%1“ wurde gelöscht.</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Welcome to Quillory</source>
        <translation>Willkommen bei Quillory</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Column Definition</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Import Column Order</source>
        <translation>Import: Spalten</translation>
    </message>
</context>
<context>
    <name>Icons</name>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Schachtel</translation>
    </message>
    <message>
        <source>Jar</source>
        <translation>Glas</translation>
    </message>
    <message>
        <source>Refrigerator</source>
        <translation>Kühlschrank</translation>
    </message>
    <message>
        <source>Freezer</source>
        <translation>Gefriertruhe</translation>
    </message>
    <message>
        <source>Apple</source>
        <translation>Apfel</translation>
    </message>
    <message>
        <source>Carrot</source>
        <translation>Karotte</translation>
    </message>
    <message>
        <source>Bread</source>
        <translation>Brot</translation>
    </message>
    <message>
        <source>Meat</source>
        <translation>Fleisch</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>Fisch</translation>
    </message>
    <message>
        <source>Milk</source>
        <translation>Milch</translation>
    </message>
    <message>
        <source>Bottle</source>
        <translation>Flasche</translation>
    </message>
    <message>
        <source>Wine</source>
        <translation>Wein</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>Kaffee</translation>
    </message>
    <message>
        <source>Baby bottle</source>
        <translation>Babyflasche</translation>
    </message>
    <message>
        <source>Pills</source>
        <translation>Tabletten</translation>
    </message>
    <message>
        <source>First aid</source>
        <translation>Erste Hilfe</translation>
    </message>
    <message>
        <source>Cosmetics</source>
        <translation>Kosmetik</translation>
    </message>
    <message>
        <source>Cleaning spray</source>
        <translation>Sprühflasche</translation>
    </message>
    <message>
        <source>Shirt</source>
        <translation>Hemd</translation>
    </message>
    <message>
        <source>Shoe</source>
        <translation>Schuh</translation>
    </message>
    <message>
        <source>Jewel</source>
        <translation>Juwel</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Münzen</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Briefmarke</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Buch</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>CD</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Game pad</source>
        <translation>Gamepad</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Puzzle</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Plug</source>
        <translation>Stecker</translation>
    </message>
    <message>
        <source>Bulb</source>
        <translation>Glühbirne</translation>
    </message>
    <message>
        <source>Hammer</source>
        <translation>Hammer</translation>
    </message>
    <message>
        <source>Screw</source>
        <translation>Schraube</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Plant</source>
        <translation>Pflanze</translation>
    </message>
    <message>
        <source>Paw</source>
        <translation>Pfote</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
</context>
<context>
    <name>ListDefinitions</name>
    <message>
        <source>Another device has deleted this list.</source>
        <translation>Ein anderes Gerät hat diese Liste gelöscht.</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>it is the data file itself</source>
        <translation>es ist die Datendatei selbst</translation>
    </message>
    <message>
        <source>it is the name of the data file&apos;s journal</source>
        <translation>es ist der Name des Journals der Datendatei</translation>
    </message>
</context>
<context>
    <name>ListTransfer</name>
    <message numerus="yes">
        <source>The import was cancelled. %n row(s) are in the list already.</source>
        <translation>
            <numerusform>Der Import wurde abgebrochen. %n Zeile ist schon in der Liste.</numerusform>
            <numerusform>Der Import wurde abgebrochen. %n Zeilen sind schon in der Liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates such as %1 were read in the form %2.</source>
        <extracomment>%1 is such as 10/05/2026, %2 such as dd/MM/yyyy.</extracomment>
        <translation>Datumsangaben wie %1 wurden in der Form %2 gelesen.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>Die Datei konnte nicht geschrieben werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are in the file. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Diese Liste ist nur zum Teil lesbar: %n Zeile steht in der Datei. „quillory restore“ zeigt Kopien und was zu retten ist.</numerusform>
            <numerusform>Diese Liste ist nur zum Teil lesbar: %n Zeilen stehen in der Datei. „quillory restore“ zeigt Kopien und was zu retten ist.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>List Properties...</source>
        <translation>Eigenschaften...</translation>
    </message>
    <message>
        <source>Rename List</source>
        <translation>Liste umbenennen</translation>
    </message>
    <message>
        <source>Import List...</source>
        <translation>Liste importieren...</translation>
    </message>
    <message>
        <source>Export List...</source>
        <translation>Liste exportieren...</translation>
    </message>
    <message>
        <source>Delete List...</source>
        <translation>Liste löschen...</translation>
    </message>
    <message>
        <source>Delete All Records...</source>
        <translation>Alle Zeilen löschen...</translation>
    </message>
    <message>
        <source>Open Read Only</source>
        <translation>Nur lesend öffnen</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Optionen...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Über Quillory...</translation>
    </message>
    <message>
        <source>Add Expiry Date Column</source>
        <translation>Ablaufdatum hinzufügen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Modify...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Create Copy</source>
        <translation>Kopie anlegen</translation>
    </message>
    <message>
        <source>View Summary...</source>
        <translation>Summen anzeigen...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Suchen...</translation>
    </message>
    <message>
        <source>Set Filters...</source>
        <translation>Filter setzen...</translation>
    </message>
    <message>
        <source>Clear Filters</source>
        <translation>Filter aufheben</translation>
    </message>
    <message>
        <source>Add 1</source>
        <translation>1 mehr</translation>
    </message>
    <message>
        <source>Subtract 1</source>
        <translation>1 weniger</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Quillory::ColourGrid</name>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
</context>
<context>
    <name>Quillory::ColumnsPanel</name>
    <message>
        <source>A new column goes before the selected one. Once the list is made its columns stay.</source>
        <translation>Eine neue Spalte kommt vor die ausgewählte. Ist die Liste angelegt, bleiben ihre Spalten, wie sie sind.</translation>
    </message>
</context>
<context>
    <name>Quillory::DataFileSession</name>
    <message>
        <source>The change could not be saved. Error: %1

Tap Retry to open the data file again.</source>
        <translation>Die Änderung konnte nicht gespeichert werden. Fehler: %1

Mit „Wiederholen“ wird die Datendatei erneut geöffnet.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. The old one is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>An die Stelle der Datendatei wurde eine andere Datei gesetzt. Die alte ist als Kopie aufbewahrt; „quillory restore“ zeigt die Kopien.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. No copy could be kept of the old one.</source>
        <translation>An die Stelle der Datendatei wurde eine andere Datei gesetzt. Von der alten konnte keine Kopie aufbewahrt werden.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. What it held is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>Die Datendatei ist nicht mehr an ihrem Platz. Ihr Inhalt ist als Kopie aufbewahrt; „quillory restore“ zeigt die Kopien.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. No copy could be kept of it.</source>
        <translation>Die Datendatei ist nicht mehr an ihrem Platz. Eine Kopie konnte nicht aufbewahrt werden.</translation>
    </message>
    <message>
        <source>No copy of the data file could be kept. Error: %1</source>
        <translation>Es konnte keine Kopie der Datendatei aufbewahrt werden. Fehler: %1</translation>
    </message>
</context>
<context>
    <name>Quillory::DateField</name>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>kein Datum</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>Typed in place of a date, in small letters.</extracomment>
        <translation>heute</translation>
    </message>
    <message>
        <source>not a date</source>
        <translation>kein Datum</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date. Type it as in %2, or pick it from the calendar.</source>
        <translation>„%1“ ist kein Datum. Tippen Sie es wie %2, oder wählen Sie es im Kalender.</translation>
    </message>
</context>
<context>
    <name>Quillory::DeviceMerge</name>
    <message>
        <source>Another device has changed the lists, and so have you. Do you want to bring both together?</source>
        <translation>Ein anderes Gerät hat die Listen geändert, und Sie auch. Beides zusammenführen?</translation>
    </message>
    <message>
        <source>Beside the data file lies another device&apos;s version, &quot;%1&quot;. Do you want to bring both together?</source>
        <translation>Neben der Datendatei liegt die Fassung eines anderen Geräts, „%1“. Beides zusammenführen?</translation>
    </message>
    <message>
        <source>The two versions could not be brought together; both are as they were. Error: %1</source>
        <translation>Die beiden Fassungen konnten nicht zusammengeführt werden; beide sind, wie sie waren. Fehler: %1</translation>
    </message>
</context>
<context>
    <name>Quillory::FilterBar</name>
    <message>
        <source>Clear</source>
        <translation>Aufheben</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 von %2 Zeilen</translation>
    </message>
</context>
<context>
    <name>Quillory::FiltersPage</name>
    <message>
        <source>No filters yet. Tap Add to make one.</source>
        <translation>Noch keine Filter. „Neu“ legt einen an.</translation>
    </message>
</context>
<context>
    <name>Quillory::GeneralPanel</name>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
</context>
<context>
    <name>Quillory::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Quillory.htm</source>
        <extracomment>The file of the help, such as Quillory_de.htm where it is there in German.</extracomment>
        <translation>Quillory_de.htm</translation>
    </message>
</context>
<context>
    <name>Quillory::HomeList</name>
    <message>
        <source>No lists yet. Tap New to make one.</source>
        <translation>Noch keine Listen. „Neu“ legt eine an.</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGrid</name>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGridPage</name>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
</context>
<context>
    <name>Quillory::IconPicker</name>
    <message>
        <source>Next icon</source>
        <translation>Nächstes Symbol</translation>
    </message>
    <message>
        <source>Previous icon</source>
        <translation>Vorheriges Symbol</translation>
    </message>
    <message>
        <source>All icons</source>
        <translation>Alle Symbole</translation>
    </message>
</context>
<context>
    <name>Quillory::MainFrame</name>
    <message>
        <source>Choose a list to see its rows.</source>
        <translation>Wählen Sie eine Liste, um ihre Zeilen zu sehen.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Some lists cannot be read. Error: %1</source>
        <translation>Einige Listen sind nicht lesbar. Fehler: %1</translation>
    </message>
    <message>
        <source>Updated from another device</source>
        <translation>Von einem anderen Gerät aktualisiert</translation>
    </message>
</context>
<context>
    <name>Quillory::MenuKey</name>
    <message>
        <source>opens a menu</source>
        <translation>öffnet ein Menü</translation>
    </message>
</context>
<context>
    <name>Quillory::MergePage</name>
    <message>
        <source>name of the list</source>
        <translation>Name der Liste</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>warning of counts</source>
        <translation>Warnung bei Anzahlen</translation>
    </message>
    <message>
        <source>warning of expiry</source>
        <translation>Warnung bei Ablauf</translation>
    </message>
    <message>
        <source>count to warn at</source>
        <translation>Anzahl, ab der gewarnt wird</translation>
    </message>
    <message>
        <source>colour of counts</source>
        <translation>Farbe der Anzahlen</translation>
    </message>
    <message>
        <source>colour of expiry</source>
        <translation>Farbe des Ablaufs</translation>
    </message>
    <message>
        <source>The list came from the other device.</source>
        <translation>Die Liste kam vom anderen Gerät.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device.</source>
        <translation>Die Liste wurde auf dem anderen Gerät gelöscht.</translation>
    </message>
    <message>
        <source>The list was deleted here and changed on the other device: it is back.</source>
        <translation>Die Liste wurde hier gelöscht und auf dem anderen Gerät geändert: Sie ist wieder da.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device and changed here: it stays.</source>
        <translation>Die Liste wurde auf dem anderen Gerät gelöscht und hier geändert: Sie bleibt.</translation>
    </message>
    <message>
        <source>Both devices had made this list: it is one now.</source>
        <translation>Beide Geräte hatten diese Liste angelegt: Jetzt ist es eine.</translation>
    </message>
    <message>
        <source>%1: came from the other device.</source>
        <translation>%1: kam vom anderen Gerät.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device.</source>
        <translation>%1: wurde auf dem anderen Gerät gelöscht.</translation>
    </message>
    <message>
        <source>%1: was deleted here and changed on the other device, and is back.</source>
        <translation>%1: wurde hier gelöscht und auf dem anderen Gerät geändert und ist wieder da.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device and changed here, and stays.</source>
        <translation>%1: wurde auf dem anderen Gerät gelöscht und hier geändert und bleibt.</translation>
    </message>
    <message>
        <source>%1: a copy of the row has the other values.</source>
        <translation>%1: Eine Kopie der Zeile hat die anderen Werte.</translation>
    </message>
    <message>
        <source>%1: %2 came in the place of %3.</source>
        <extracomment>Such as &quot;Tea, Quantity: 5 came in the place of 3.&quot;</extracomment>
        <translation>%1: %2 statt %3.</translation>
    </message>
    <message>
        <source>%1: both devices had changed it. It is %2; the other was %3.</source>
        <translation>%1: auf beiden Geräten geändert. Jetzt %2; das andere war %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted. It is %2; the other was %3.</source>
        <translation>%1: auf beiden Geräten gezählt. Jetzt %2; das andere war %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted beyond the limit. It is %2; the other was %3.</source>
        <translation>%1: auf beiden Geräten über die Grenze gezählt. Jetzt %2; das andere war %3.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A row&apos;s name and that of a column.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>In the place of a value that is not there.</extracomment>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Brought together</source>
        <translation>Zusammengeführt</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Und %n weiterer.</numerusform>
            <numerusform>Und %n weitere.</numerusform>
        </translation>
    </message>
    <message>
        <source>What both come from was not known any more. So nothing was deleted, and counts that both had changed were not added up.</source>
        <translation>Woraus beide entstanden sind, war nicht mehr bekannt. Deshalb wurde nichts gelöscht, und Anzahlen, die beide geändert hatten, wurden nicht zusammengezählt.</translation>
    </message>
</context>
<context>
    <name>Quillory::OptionsPanel</name>
    <message>
        <source>Only lists with an expiry date column can warn of dates.</source>
        <translation>Nur Listen mit einem Ablaufdatum können davor warnen.</translation>
    </message>
</context>
<context>
    <name>Quillory::Page</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Do you want to discard what you have entered?</source>
        <translation>Eingaben verwerfen?</translation>
    </message>
</context>
<context>
    <name>Quillory::RowsView</name>
    <message>
        <source>read-only</source>
        <translation>nur lesend</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are shown. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Diese Liste ist nur zum Teil lesbar: %n Zeile wird gezeigt. „quillory restore“ zeigt Kopien und was zu retten ist.</numerusform>
            <numerusform>Diese Liste ist nur zum Teil lesbar: %n Zeilen werden gezeigt. „quillory restore“ zeigt Kopien und was zu retten ist.</numerusform>
        </translation>
    </message>
    <message>
        <source>No row meets the filters.</source>
        <translation>Keine Zeile erfüllt die Filter.</translation>
    </message>
    <message>
        <source>This list has no rows.</source>
        <translation>Diese Liste hat keine Zeilen.</translation>
    </message>
    <message>
        <source>No rows yet. Tap New to add one.</source>
        <translation>Noch keine Zeilen. „Neu“ legt eine an.</translation>
    </message>
    <message>
        <source>This list can be read only in part, so nothing is summed up. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>Diese Liste ist nur zum Teil lesbar, darum wird nichts zusammengezählt. „quillory restore“ zeigt Kopien und was zu retten ist.</translation>
    </message>
</context>
<context>
    <name>Quillory::SummaryPage</name>
    <message>
        <source>Totals</source>
        <translation>Summen</translation>
    </message>
</context>
<context>
    <name>Quillory::ThresholdEdit</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>The least and the greatest number that can be typed.</extracomment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>Quillory::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>past</source>
        <extracomment>The first bar of a drawing of months: what is expired already.</extracomment>
        <translation>vorbei</translation>
    </message>
    <message>
        <source>What expires in the next twelve months</source>
        <translation>Was in den nächsten zwölf Monaten abläuft</translation>
    </message>
    <message>
        <source>Of what fewest are left, beside the threshold</source>
        <translation>Wovon am wenigsten da ist, neben der Grenze</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Summen</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Strings</name>
    <message>
        <source>Inventory List</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>Do you want to delete the selected row?</source>
        <translation>Die ausgewählte Zeile löschen?</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>New Inventory List</source>
        <translation>Neue Liste</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Please specifiy a name. Empty name is not allowed.</source>
        <translation>Bitte geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>Do you want to delete all rows in list &apos;%s&apos;?</source>
        <translation>Alle Zeilen der Liste „%s“ löschen?</translation>
    </message>
    <message>
        <source>Do you want to delete list &apos;%s&apos; and all its data?</source>
        <translation>Die Liste „%s“ mit allen Zeilen löschen?</translation>
    </message>
    <message>
        <source>Inventory List Options</source>
        <translation>Liste bearbeiten</translation>
    </message>
    <message>
        <source>Quillory is unable to open the data file. Please make sure the storage card is inserted.</source>
        <translation>Die Datendatei lässt sich nicht öffnen. Bitte prüfen Sie, ob die Speicherkarte eingesteckt ist.</translation>
    </message>
    <message>
        <source>The data file cannot be found. Do you want to create a new data file at the same location? Tap No to try to locate it again.</source>
        <translation>Die Datendatei ist nicht zu finden. Am selben Ort eine neue anlegen? Mit „Nein“ wird noch einmal nach ihr gesucht.</translation>
    </message>
    <message>
        <source>No record matched the criteria.</source>
        <translation>Keine Zeile erfüllt die Bedingung.</translation>
    </message>
    <message>
        <source>Import is completed with errors. Data may not be imported properly.</source>
        <translation>Der Import ist mit Fehlern zu Ende. Vielleicht fehlen Zeilen.</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Checkbox</source>
        <translation>Kästchen</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Expiry Date</source>
        <translation>Ablaufdatum</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>contains</source>
        <extracomment>The conditions stand between a column and a value: Price &quot;greater than&quot; 3.50.</extracomment>
        <translation>enthält</translation>
    </message>
    <message>
        <source>equals to</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>not equals to</source>
        <translation>ungleich</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>größer als</translation>
    </message>
    <message>
        <source>greater than or equals to</source>
        <translation>größer oder gleich</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>kleiner als</translation>
    </message>
    <message>
        <source>less than or equals to</source>
        <translation>kleiner oder gleich</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>These stand before a date: Opened &quot;on or after&quot; 10 May.</extracomment>
        <translation>am</translation>
    </message>
    <message>
        <source>not on</source>
        <translation>nicht am</translation>
    </message>
    <message>
        <source>after</source>
        <translation>nach</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>am oder nach</translation>
    </message>
    <message>
        <source>before</source>
        <translation>vor</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>am oder vor</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Unable to create list table!</source>
        <translation>Die Tabelle der Listen kann nicht angelegt werden!</translation>
    </message>
    <message>
        <source>Unable to create user database!</source>
        <translation>Die Datenbank kann nicht angelegt werden!</translation>
    </message>
    <message>
        <source>Unable to create inventory table!</source>
        <translation>Die Tabelle der Liste kann nicht angelegt werden!</translation>
    </message>
    <message>
        <source>Unable to open data file. Error: %d</source>
        <translation>Die Datendatei kann nicht geöffnet werden. Fehler: %d</translation>
    </message>
    <message>
        <source>Out of memory!</source>
        <translation>Der Speicher reicht nicht!</translation>
    </message>
    <message>
        <source>To begin using Quillory, please choose a name and location to store all your inventory lists. Tap OK to continue.</source>
        <translation>Wählen Sie zuerst Namen und Ort der Datei, in der alle Listen liegen sollen. Weiter mit OK.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>to colour</source>
        <extracomment>Stands between a number and a colour: &quot;Enable row colour when count is less than or equal to&quot; 3 &quot;to colour&quot; red.</extracomment>
        <translation>in</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>Feld:</translation>
    </message>
    <message>
        <source>Condition:</source>
        <translation>Bedingung:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Wert:</translation>
    </message>
    <message>
        <source>Inventory Database</source>
        <translation>Quillory-Datendatei</translation>
    </message>
    <message>
        <source>Text Files</source>
        <translation>Textdateien</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>low</source>
        <extracomment>Beside the name of a row of which few are left; short.</extracomment>
        <translation>knapp</translation>
    </message>
    <message>
        <source>expired</source>
        <extracomment>Beside the name of a row whose expiry date is reached; short.</extracomment>
        <translation>abgelaufen</translation>
    </message>
</context>
</TS>
