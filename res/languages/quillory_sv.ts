<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv">
<context>
    <name>Calendar</name>
    <message>
        <source>Previous month</source>
        <translation>Föregående månad</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nästa månad</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>År</translation>
    </message>
</context>
<context>
    <name>Colours</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisk</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blå</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>Marinblå</translation>
    </message>
    <message>
        <source>Azure</source>
        <translation>Azurblå</translation>
    </message>
    <message>
        <source>Midnight blue</source>
        <translation>Midnattsblå</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Röd</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>Vinröd</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Pale pink</source>
        <translation>Ljusrosa</translation>
    </message>
    <message>
        <source>Slate blue</source>
        <translation>Skifferblå</translation>
    </message>
    <message>
        <source>Dark plum</source>
        <translation>Plommon</translation>
    </message>
    <message>
        <source>Pale cyan</source>
        <translation>Ljus cyan</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Brun</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>Klargrön</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grön</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blågrön</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Oliv</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gul</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Ljusblå</translation>
    </message>
    <message>
        <source>Periwinkle</source>
        <translation>Vintergröna</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Pale orange</source>
        <translation>Ljusorange</translation>
    </message>
    <message>
        <source>Dusky blue</source>
        <translation>Duvblå</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Himmelsblå</translation>
    </message>
    <message>
        <source>Leaf green</source>
        <translation>Lövgrön</translation>
    </message>
    <message>
        <source>Pale green</source>
        <translation>Ljusgrön</translation>
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
        <translation>Malva</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Purpur</translation>
    </message>
    <message>
        <source>Amber</source>
        <translation>Bärnsten</translation>
    </message>
    <message>
        <source>Sage</source>
        <translation>Salvia</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grå</translation>
    </message>
    <message>
        <source>Raspberry</source>
        <translation>Hallon</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Mörkgrön</translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>Prints a line per list, in the order of their names: name TAB number of rows.

  --json               name, rows, icon and columns of each list
</source>
        <translation>Skriver en rad per lista, i namnordning: namn TAB antal rader.

  --json               namn, rader, ikon och kolumner för varje lista
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
        <translation>Skapar en lista och skriver inget. De första kolumnerna är Name och Quantity.

  --column NAME:TYPE   lägger till en kolumn; TYPE är string, checkbox, price,
                       integer, date eller expiry (som inte behöver NAME). Får
                       anges flera gånger.
  --warn-count N       varnar för rader vars antal är N eller mindre
  --warn-expiry        varnar för rader vars utgångsdatum är nått
  --icon N             ikon 0 till 42
  --create             skapar datafilen om den inte finns
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
        <translation>  --where CONDITION    bara rader som uppfyller det: &quot;COLUMN CONDITION VALUE&quot;,
                       som i &quot;Name contains tea&quot;, &quot;Quantity &lt; 3&quot;,
                       &quot;Opened = Checked&quot;. Villkoren är filtrens, med deras engelska ord
                       eller = != &gt; &gt;= &lt; &lt;=. Som där hittar != i text, tal och
                       priser samma som =. Tal läses som de visas. Får anges
                       flera gånger: alla måste gälla.
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
        <translation>Skriver en rad med kolumnnamn och sedan raderna i namnordning, med TAB mellan
fälten. Styrtecken i texter visas som mellanslag.

  --sort COLUMN        i stigande ordning efter en kolumn
  --descending         i omvänd ordning
  --no-header          utan raden med kolumnnamn
  --json               ett objekt per rad; datum som YYYY-MM-DD, saknade värden
                       som null
</translation>
    </message>
    <message>
        <source>Looks for a text in every column of every list, whatever its case and accents, and prints a
line per value that has it: list TAB row TAB column TAB value.

  --json               list, row, column and text of each
</source>
        <translation>Söker en text i alla kolumner i alla listor, utan hänsyn till versaler och
accenter, och skriver en rad per värde som har den: lista TAB rad TAB kolumn
TAB värde.

  --json               lista, rad, kolumn och text för varje
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
        <translation>Skriver raderna som text, på samma sätt som ”Exportera lista”: UTF-16, TAB
mellan fälten, CR LF efter varje rad. Utan FILE, eller med -, till standard ut.
En FILE som finns ersätts.

  --dates iso          datum som YYYY-MM-DD, som läses lika överallt
  --format NAME        csv eller tsv, en tabell för andra program i UTF-8 med
                       kolumnnamnen på första raden: datum som YYYY-MM-DD,
                       decimalpunkt, true och false; json, som show skriver
                       det; eller html, en sida att läsa
  --all DIR            alla listor till en mapp, som skapas vid behov: en fil
                       för varje, csv om inget annat sägs, och lists.json som
                       beskriver dem
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
        <translation>Lägger till en rad för varje rad i en textfil, på samma sätt som ”Importera
lista”, och skriver hur många som kom in. FILE - är standard in. Varje rad
måste sluta med CR LF, den sista också.

  --columns &quot;A,B&quot;      kolumnerna som radens fält fyller; de som inte nämns
                       följer i listans ordning, som också gäller utan det här
                       alternativet
  --encoding NAME      filens kodning: utf-8, utf-16 eller numret på en
                       teckentabell som 1252
  --format NAME        csv eller tsv, tabeller som export skriver dem: första
                       raden namnger kolumner; i csv skiljer komma, semikolon
                       eller TAB fälten åt. Alla rader kommer in, eller ingen
  --match COLUMN       för en tabell: ändrar raden som har samma värde i den
                       här kolumnen och lägger till en där ingen har det
  --all DIR            skapar varje lista som lists.json i en mapp beskriver,
                       och skriver ut dem
  --create             med --all: skapar datafilen om den inte finns
  --dry-run            sparar inget, skriver hur många rader som skulle komma
                       in
</translation>
    </message>
    <message>
        <source>Prints a line per total of a number or price column: name TAB total, with a point before
decimals.

  --json               name and total of each
</source>
        <translation>Skriver en rad per summa av en tal- eller priskolumn: namn TAB summa, med
decimalpunkt.

  --json               namn och summa för varje
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
        <translation>Skriver rader i listor vars varningar är på: lista TAB rad TAB ”low”, ”expired”
eller datumet då raden går ut.

  --within DAYS        också rader som går ut inom så många dagar
  --json               lista, rad, läge och antal eller datum för varje
  --ics                skriver i stället en kalender med alla utgångsdatum, som
                       iCalendar; med --within bara till dess
  --notify             skriver inget, men visar högst en gång om dagen, som en
                       avisering på skrivbordet, vad som har tillkommit sedan
                       sist. Ett tryck på den öppnar listan; till dess, eller
                       tills den stängs, väntar kommandot.

Slutar med 3 om något är aktuellt, annars med 0.
</translation>
    </message>
    <message>
        <source>Turns a notification each morning of what is due on or off, or prints whether it is on.
Needs systemd, whose timer quillory-reminders then runs &quot;quillory due --notify&quot;.
</source>
        <translation>Slår på eller av en avisering varje morgon om det som är aktuellt, eller
skriver om den är på. Behöver systemd, vars timer quillory-reminders då kör
”quillory due --notify”.
</translation>
    </message>
    <message>
        <source>Adds a row with these values and prints 1. Numbers are read as they are shown, a checkbox is
Checked or Unchecked.

  --dry-run            stores nothing
</source>
        <translation>Lägger till en rad med de här värdena och skriver 1. Tal läses som de visas, en
kryssruta är Checked eller Unchecked.

  --dry-run            sparar inget
</translation>
    </message>
    <message>
        <source>Gives all rows that meet the conditions these values, or none of them if one cannot be
stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Ger alla rader som uppfyller villkoren de här värdena, eller ingen om en inte
kan sparas, och skriver hur många de är.

  --dry-run            sparar inget
</translation>
    </message>
    <message>
        <source>Counts all rows that meet the conditions up by +N or down by -N, or none of them if one
cannot be stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Räknar upp antalet med +N eller ner med -N i alla rader som uppfyller
villkoren, eller i ingen om en inte kan sparas, och skriver hur många de är.

  --dry-run            sparar inget
</translation>
    </message>
    <message>
        <source>Deletes all rows that meet the conditions, or none of them if one cannot be, and prints how
many there are.

  --dry-run            deletes nothing
</source>
        <translation>Tar bort alla rader som uppfyller villkoren, eller ingen om en inte kan tas
bort, och skriver hur många de är.

  --dry-run            tar inte bort något
</translation>
    </message>
    <message>
        <source>Gives a list another name and prints nothing.

  --dry-run            stores nothing
</source>
        <translation>Ger en lista ett annat namn och skriver inget.

  --dry-run            sparar inget
</translation>
    </message>
    <message>
        <source>Deletes a list with all its rows and prints how many these are.

  --dry-run            deletes nothing
</source>
        <translation>Tar bort en lista med alla rader och skriver hur många de var.

  --dry-run            tar inte bort något
</translation>
    </message>
    <message>
        <source>Reads the whole data file. Prints &quot;ok&quot;, or what is wrong and exits with 1.
</source>
        <translation>Läser hela datafilen. Skriver ”ok”, eller vad som är fel och slutar då med 1.
</translation>
    </message>
    <message>
        <source>Writes a consistent copy of the data file, also while it is in use. FILE must not exist.
</source>
        <translation>Skriver en konsistent kopia av datafilen, också medan den används. FILE får
inte finnas.
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
        <translation>Efter varje körning som ändrade listor eller rader i den inställda datafilen
sparas en kopia: de tre senaste, eller så många som KeptCopies=0...9 i
inställningarna säger, och äldre så länge alla tillsammans är högst 32 MB. De
tas bort 90 dagar efter att filen har försvunnit.

Utan alternativ skrivs en rad per kopia, den nyaste först: nummer TAB tid TAB
byte, och sedan en rad per lista som kan läsas ur själva datafilen, också om
den är skadad: salvage TAB lista TAB rader TAB vad som gått förlorat. Annars
skapas den nya datafilen FILE, som inte får finnas:

  --from N             ur kopia N
  --salvage            ur det som ännu kan läsas av datafilen, och skriver vad
                       det är; datafilen bara läses
  --json               ett objekt per kopia och per lista
</translation>
    </message>
    <message>
        <source>none so far</source>
        <translation>ingen än</translation>
    </message>
    <message>
        <source>  --data FILE          works on another data file than the configured one (%1)

Here dates are written %2 and numbers %3, but in text files with a point and no
groups. Text files are written in UTF-16 behind a byte-order mark, and read in code page
%4 where there is none.
</source>
        <extracomment>%1 is the data file, %2 such as dd/MM/yyyy, %3 such as 1,234.50, %4 such as 1252.</extracomment>
        <translation>  --data FILE          arbetar med en annan datafil än den inställda (%1)

Här skrivs datum %2 och tal %3, men i textfiler med punkt och utan gruppering.
Textfiler skrivs i UTF-16 efter en byteordningsmarkering, och läses i
teckentabell %4 där ingen finns.
</translation>
    </message>
    <message>
        <source>
Opens the window, showing LIST if it is named. The commands work without it:

</source>
        <translation>
Öppnar fönstret, med LIST om den nämns. Kommandona klarar sig utan det:

</translation>
    </message>
    <message>
        <source>
  --new-list           opens the window with the page of a new list
  --help               help, on a command if one is named
  --version            the version
</source>
        <translation>
  --new-list           öppnar fönstret med sidan för en ny lista
  --help               hjälp, om ett kommando om det nämns
  --version            versionen
</translation>
    </message>
    <message>
        <source>
Exit status: 0 done, 1 failed, 2 wrong usage, 3 something is due.
</source>
        <translation>
Slutkod: 0 klart, 1 misslyckat, 2 felaktigt anrop, 3 något är aktuellt.
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
        <translation>Skriver en lista att skriva ut eller skicka: dess rader, med det som håller på
att ta slut eller har gått ut märkt, summor, och diagram över vad som går ut de
närmaste tolv månaderna och över det som det finns minst av. Utan FILE, eller
med -, till standard ut. En FILE som finns ersätts.

  --all                alla listor i en rapport
  --format NAME        pdf, eller html för en sida som inte behöver någon annan
                       fil; annars det som FILE slutar på, eller pdf
</translation>
    </message>
    <message>
        <source>Prints what merging OTHER, another device&apos;s copy of the data file, would do, as merge prints it.
Changes nothing. Exits with 3 if OTHER has something that the data file has not.

  --base FILE          what both come from, where no kept copy is
  --json               an object per line
</source>
        <translation>Visar vad det skulle göra att föra ihop OTHER, en annan enhets kopia av datafilen, som merge visar
det. Ändrar ingenting. Slutar med 3 om OTHER har något som datafilen saknar.

  --base FILE          vad båda kommer från, om ingen kopia finns kvar
  --json               ett objekt per rad
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
        <translation>För ihop datafilen och OTHER, en annan enhets kopia av den, i datafilen. OTHER läses bara. Visar en
rad för allt som kom eller försvann och för varje värde som båda hade ändrat: vad TAB lista TAB rad
TAB kolumn TAB värde TAB annat värde. Före det sparas kopior av båda filerna.

  --base FILE          vad båda kommer från, om ingen kopia finns kvar
  --dry-run            sparar ingenting
  --json               ett objekt per rad
</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>Enable row colour when count is less than or equal to</source>
        <translation>Färga raden när antalet är högst</translation>
    </message>
    <message>
        <source>Enable row colour when expiry date is reached to colour</source>
        <translation>Färga raden när utgångsdatumet är nått, i</translation>
    </message>
    <message>
        <source>Display list using landscape mode</source>
        <translation>Visa listor i liggande format</translation>
    </message>
    <message>
        <source>Landscape (right-handed)</source>
        <translation>Liggande (högerhänt)</translation>
    </message>
    <message>
        <source>Landscape (left-handed)</source>
        <translation>Liggande (vänsterhänt)</translation>
    </message>
    <message>
        <source>Use alternate row colour</source>
        <translation>Tona varannan rad</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Flytta upp</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Flytta ner</translation>
    </message>
</context>
<context>
    <name>DataFileOpener</name>
    <message>
        <source>The data file is damaged. There is a good copy of %1.

Do you want to go on with it? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Datafilen är skadad. Det finns en bra kopia från %1.

Vill du fortsätta med den? Den skrivs till en ny fil; den skadade lämnas som den är.</translation>
    </message>
    <message>
        <source>The new file could not be written. Error: %1</source>
        <translation>Den nya filen kunde inte skrivas. Fel: %1</translation>
    </message>
    <message>
        <source>Beside the data file lay the journal of another file. It is kept as %1.</source>
        <translation>Bredvid datafilen låg en annan fils journal. Den är sparad som %1.</translation>
    </message>
    <message>
        <source>Another program has written into the data file. What it holds now: %1, %2.

Do you want to go on with that? It is written to a new file; the old one stays as it is.</source>
        <translation>Ett annat program har skrivit i datafilen. Den innehåller nu: %1, %2.

Vill du fortsätta med det? Det skrivs till en ny fil; den gamla lämnas som den är.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file: %1, %2.

Do you want to go on with that? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Det som ännu kan läsas av den skadade filen: %1, %2.

Vill du fortsätta med det? Det skrivs till en ny fil; den skadade lämnas som den är.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n rad</numerusform>
            <numerusform>%n rader</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s)</source>
        <translation>
            <numerusform>%n lista</numerusform>
            <numerusform>%n listor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Deletions</name>
    <message>
        <source>The list &apos;%1&apos; was deleted.</source>
        <translation>Listan ”%1” är borttagen.</translation>
    </message>
    <message>
        <source>All rows of &apos;%1&apos; were deleted.</source>
        <translation>Alla rader i ”%1” är borttagna.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was deleted.</source>
        <translation>”%1” är borttagen.</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Welcome to Quillory</source>
        <translation>Välkommen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Kolumner</translation>
    </message>
    <message>
        <source>Column Definition</source>
        <translation>Kolumn</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativ</translation>
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
        <translation>Ordning vid import</translation>
    </message>
</context>
<context>
    <name>Icons</name>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Låda</translation>
    </message>
    <message>
        <source>Jar</source>
        <translation>Burk</translation>
    </message>
    <message>
        <source>Refrigerator</source>
        <translation>Kylskåp</translation>
    </message>
    <message>
        <source>Freezer</source>
        <translation>Frys</translation>
    </message>
    <message>
        <source>Apple</source>
        <translation>Äpple</translation>
    </message>
    <message>
        <source>Carrot</source>
        <translation>Morot</translation>
    </message>
    <message>
        <source>Bread</source>
        <translation>Bröd</translation>
    </message>
    <message>
        <source>Meat</source>
        <translation>Kött</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>Fisk</translation>
    </message>
    <message>
        <source>Milk</source>
        <translation>Mjölk</translation>
    </message>
    <message>
        <source>Bottle</source>
        <translation>Flaska</translation>
    </message>
    <message>
        <source>Wine</source>
        <translation>Vin</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>Kaffe</translation>
    </message>
    <message>
        <source>Baby bottle</source>
        <translation>Nappflaska</translation>
    </message>
    <message>
        <source>Pills</source>
        <translation>Tabletter</translation>
    </message>
    <message>
        <source>First aid</source>
        <translation>Första hjälpen</translation>
    </message>
    <message>
        <source>Cosmetics</source>
        <translation>Kosmetika</translation>
    </message>
    <message>
        <source>Cleaning spray</source>
        <translation>Sprejflaska</translation>
    </message>
    <message>
        <source>Shirt</source>
        <translation>Skjorta</translation>
    </message>
    <message>
        <source>Shoe</source>
        <translation>Sko</translation>
    </message>
    <message>
        <source>Jewel</source>
        <translation>Juvel</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Klocka</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Mynt</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Frimärke</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Bok</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Skiva</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Game pad</source>
        <translation>Handkontroll</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Pussel</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Dator</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteri</translation>
    </message>
    <message>
        <source>Plug</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Bulb</source>
        <translation>Glödlampa</translation>
    </message>
    <message>
        <source>Hammer</source>
        <translation>Hammare</translation>
    </message>
    <message>
        <source>Screw</source>
        <translation>Skruv</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Målarfärg</translation>
    </message>
    <message>
        <source>Plant</source>
        <translation>Växt</translation>
    </message>
    <message>
        <source>Paw</source>
        <translation>Tass</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>Bil</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Nyckel</translation>
    </message>
</context>
<context>
    <name>ListDefinitions</name>
    <message>
        <source>Another device has deleted this list.</source>
        <translation>En annan enhet har tagit bort listan.</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>it is the data file itself</source>
        <translation>det är själva datafilen</translation>
    </message>
    <message>
        <source>it is the name of the data file&apos;s journal</source>
        <translation>det är namnet på datafilens journal</translation>
    </message>
</context>
<context>
    <name>ListTransfer</name>
    <message numerus="yes">
        <source>The import was cancelled. %n row(s) are in the list already.</source>
        <translation>
            <numerusform>Importen avbröts. %n rad finns redan i listan.</numerusform>
            <numerusform>Importen avbröts. %n rader finns redan i listan.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates such as %1 were read in the form %2.</source>
        <extracomment>%1 is such as 10/05/2026, %2 such as dd/MM/yyyy.</extracomment>
        <translation>Datum som %1 lästes i formen %2.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>Det är ingen vanlig fil.</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>Filen kunde inte skrivas: %1</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are in the file. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Listan kan bara läsas delvis: %n rad är i filen. ”quillory restore” visar kopior och vad som kan räddas.</numerusform>
            <numerusform>Listan kan bara läsas delvis: %n rader är i filen. ”quillory restore” visar kopior och vad som kan räddas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>List Properties...</source>
        <translation>Egenskaper...</translation>
    </message>
    <message>
        <source>Rename List</source>
        <translation>Byt namn på listan</translation>
    </message>
    <message>
        <source>Import List...</source>
        <translation>Importera lista...</translation>
    </message>
    <message>
        <source>Export List...</source>
        <translation>Exportera lista...</translation>
    </message>
    <message>
        <source>Delete List...</source>
        <translation>Ta bort lista...</translation>
    </message>
    <message>
        <source>Delete All Records...</source>
        <translation>Ta bort alla rader...</translation>
    </message>
    <message>
        <source>Open Read Only</source>
        <translation>Öppna skrivskyddat</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Alternativ...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Om...</translation>
    </message>
    <message>
        <source>Add Expiry Date Column</source>
        <translation>Lägg till utgångsdatum</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Byt namn</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Flytta upp</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Flytta ner</translation>
    </message>
    <message>
        <source>Modify...</source>
        <translation>Ändra...</translation>
    </message>
    <message>
        <source>Create Copy</source>
        <translation>Skapa kopia</translation>
    </message>
    <message>
        <source>View Summary...</source>
        <translation>Visa summor...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Sök...</translation>
    </message>
    <message>
        <source>Set Filters...</source>
        <translation>Ange filter...</translation>
    </message>
    <message>
        <source>Clear Filters</source>
        <translation>Rensa filter</translation>
    </message>
    <message>
        <source>Add 1</source>
        <translation>Öka med 1</translation>
    </message>
    <message>
        <source>Subtract 1</source>
        <translation>Minska med 1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Ta bort alla</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Ny</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Meny</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Infoga</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>Quillory::ColourGrid</name>
    <message>
        <source>Colours</source>
        <translation>Färger</translation>
    </message>
</context>
<context>
    <name>Quillory::ColumnsPanel</name>
    <message>
        <source>A new column goes before the selected one. Once the list is made its columns stay.</source>
        <translation>En ny kolumn hamnar före den markerade. När listan är skapad ligger kolumnerna fast.</translation>
    </message>
</context>
<context>
    <name>Quillory::DataFileSession</name>
    <message>
        <source>The change could not be saved. Error: %1

Tap Retry to open the data file again.</source>
        <translation>Ändringen kunde inte sparas. Fel: %1

Tryck på Försök igen för att öppna datafilen på nytt.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. The old one is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>En annan fil har lagts i datafilens ställe. Den gamla är sparad som kopia; ”quillory restore” visar kopiorna.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. No copy could be kept of the old one.</source>
        <translation>En annan fil har lagts i datafilens ställe. Ingen kopia av den gamla kunde sparas.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. What it held is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>Datafilen finns inte längre på sin plats. Innehållet är sparat som kopia; ”quillory restore” visar kopiorna.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. No copy could be kept of it.</source>
        <translation>Datafilen finns inte längre på sin plats. Ingen kopia av den kunde sparas.</translation>
    </message>
    <message>
        <source>No copy of the data file could be kept. Error: %1</source>
        <translation>Ingen kopia av datafilen kunde sparas. Fel: %1</translation>
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
        <translation>inget datum</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>Typed in place of a date, in small letters.</extracomment>
        <translation>idag</translation>
    </message>
    <message>
        <source>not a date</source>
        <translation>ogiltigt datum</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date. Type it as in %2, or pick it from the calendar.</source>
        <translation>”%1” är inget datum. Skriv det som %2 eller välj det i kalendern.</translation>
    </message>
</context>
<context>
    <name>Quillory::DeviceMerge</name>
    <message>
        <source>Another device has changed the lists, and so have you. Do you want to bring both together?</source>
        <translation>En annan enhet har ändrat listorna, och det har du också. Vill du föra ihop båda?</translation>
    </message>
    <message>
        <source>Beside the data file lies another device&apos;s version, &quot;%1&quot;. Do you want to bring both together?</source>
        <translation>Bredvid datafilen ligger en annan enhets version, ”%1”. Vill du föra ihop båda?</translation>
    </message>
    <message>
        <source>The two versions could not be brought together; both are as they were. Error: %1</source>
        <translation>De två versionerna kunde inte föras ihop; båda är som de var. Fel: %1</translation>
    </message>
</context>
<context>
    <name>Quillory::FilterBar</name>
    <message>
        <source>Clear</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 av %2 rader</translation>
    </message>
</context>
<context>
    <name>Quillory::FiltersPage</name>
    <message>
        <source>No filters yet. Tap Add to make one.</source>
        <translation>Inga filter än. Tryck på Lägg till för att skapa ett.</translation>
    </message>
</context>
<context>
    <name>Quillory::GeneralPanel</name>
    <message>
        <source>Icon</source>
        <translation>Ikon</translation>
    </message>
</context>
<context>
    <name>Quillory::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Quillory.htm</source>
        <extracomment>The file of the help, such as Quillory_de.htm where it is there in German.</extracomment>
        <translation>Quillory.htm</translation>
    </message>
</context>
<context>
    <name>Quillory::HomeList</name>
    <message>
        <source>No lists yet. Tap New to make one.</source>
        <translation>Inga listor än. Tryck på Ny för att skapa en.</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGrid</name>
    <message>
        <source>Icons</source>
        <translation>Ikoner</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGridPage</name>
    <message>
        <source>Icon</source>
        <translation>Ikon</translation>
    </message>
</context>
<context>
    <name>Quillory::IconPicker</name>
    <message>
        <source>Next icon</source>
        <translation>Nästa ikon</translation>
    </message>
    <message>
        <source>Previous icon</source>
        <translation>Föregående ikon</translation>
    </message>
    <message>
        <source>All icons</source>
        <translation>Alla ikoner</translation>
    </message>
</context>
<context>
    <name>Quillory::MainFrame</name>
    <message>
        <source>Choose a list to see its rows.</source>
        <translation>Välj en lista för att se dess rader.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Some lists cannot be read. Error: %1</source>
        <translation>Några listor kan inte läsas. Fel: %1</translation>
    </message>
    <message>
        <source>Updated from another device</source>
        <translation>Uppdaterad från en annan enhet</translation>
    </message>
</context>
<context>
    <name>Quillory::MenuKey</name>
    <message>
        <source>opens a menu</source>
        <translation>öppnar en meny</translation>
    </message>
</context>
<context>
    <name>Quillory::MergePage</name>
    <message>
        <source>name of the list</source>
        <translation>listans namn</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>ikon</translation>
    </message>
    <message>
        <source>warning of counts</source>
        <translation>varning för antal</translation>
    </message>
    <message>
        <source>warning of expiry</source>
        <translation>varning för utgång</translation>
    </message>
    <message>
        <source>count to warn at</source>
        <translation>antal att varna vid</translation>
    </message>
    <message>
        <source>colour of counts</source>
        <translation>färg för antal</translation>
    </message>
    <message>
        <source>colour of expiry</source>
        <translation>färg för utgång</translation>
    </message>
    <message>
        <source>The list came from the other device.</source>
        <translation>Listan kom från den andra enheten.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device.</source>
        <translation>Listan togs bort på den andra enheten.</translation>
    </message>
    <message>
        <source>The list was deleted here and changed on the other device: it is back.</source>
        <translation>Listan togs bort här och ändrades på den andra enheten: den är tillbaka.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device and changed here: it stays.</source>
        <translation>Listan togs bort på den andra enheten och ändrades här: den stannar.</translation>
    </message>
    <message>
        <source>Both devices had made this list: it is one now.</source>
        <translation>Båda enheterna hade skapat listan: nu är den en.</translation>
    </message>
    <message>
        <source>%1: came from the other device.</source>
        <translation>%1: kom från den andra enheten.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device.</source>
        <translation>%1: togs bort på den andra enheten.</translation>
    </message>
    <message>
        <source>%1: was deleted here and changed on the other device, and is back.</source>
        <translation>%1: togs bort här och ändrades på den andra enheten, och är tillbaka.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device and changed here, and stays.</source>
        <translation>%1: togs bort på den andra enheten och ändrades här, och stannar.</translation>
    </message>
    <message>
        <source>%1: a copy of the row has the other values.</source>
        <translation>%1: en kopia av raden har de andra värdena.</translation>
    </message>
    <message>
        <source>%1: %2 came in the place of %3.</source>
        <extracomment>Such as &quot;Tea, Quantity: 5 came in the place of 3.&quot;</extracomment>
        <translation>%1: %2 i stället för %3.</translation>
    </message>
    <message>
        <source>%1: both devices had changed it. It is %2; the other was %3.</source>
        <translation>%1: ändrat på båda enheterna. Nu %2; det andra var %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted. It is %2; the other was %3.</source>
        <translation>%1: räknat på båda enheterna. Nu %2; det andra var %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted beyond the limit. It is %2; the other was %3.</source>
        <translation>%1: räknat över gränsen på båda enheterna. Nu %2; det andra var %3.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A row&apos;s name and that of a column.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>In the place of a value that is not there.</extracomment>
        <translation>inget</translation>
    </message>
    <message>
        <source>Brought together</source>
        <translation>Sammanfört</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Och %n till.</numerusform>
            <numerusform>Och %n till.</numerusform>
        </translation>
    </message>
    <message>
        <source>What both come from was not known any more. So nothing was deleted, and counts that both had changed were not added up.</source>
        <translation>Det var inte längre känt vad båda kommer från. Därför togs inget bort, och antal som båda hade ändrat räknades inte ihop.</translation>
    </message>
</context>
<context>
    <name>Quillory::OptionsPanel</name>
    <message>
        <source>Only lists with an expiry date column can warn of dates.</source>
        <translation>Bara listor med utgångsdatum kan varna för det.</translation>
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
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Do you want to discard what you have entered?</source>
        <translation>Vill du kasta det du har skrivit?</translation>
    </message>
</context>
<context>
    <name>Quillory::RowsView</name>
    <message>
        <source>read-only</source>
        <translation>skrivskyddad</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are shown. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Listan kan bara läsas delvis: %n rad visas. ”quillory restore” visar kopior och vad som kan räddas.</numerusform>
            <numerusform>Listan kan bara läsas delvis: %n rader visas. ”quillory restore” visar kopior och vad som kan räddas.</numerusform>
        </translation>
    </message>
    <message>
        <source>No row meets the filters.</source>
        <translation>Ingen rad uppfyller filtren.</translation>
    </message>
    <message>
        <source>This list has no rows.</source>
        <translation>Listan har inga rader.</translation>
    </message>
    <message>
        <source>No rows yet. Tap New to add one.</source>
        <translation>Inga rader än. Tryck på Ny för att lägga till en.</translation>
    </message>
    <message>
        <source>This list can be read only in part, so nothing is summed up. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>Listan kan bara läsas delvis, så inget summeras. ”quillory restore” visar kopior och vad som kan räddas.</translation>
    </message>
</context>
<context>
    <name>Quillory::SummaryPage</name>
    <message>
        <source>Totals</source>
        <translation>Summor</translation>
    </message>
</context>
<context>
    <name>Quillory::ThresholdEdit</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>The least and the greatest number that can be typed.</extracomment>
        <translation>%1 till %2</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Mindre</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mer</translation>
    </message>
</context>
<context>
    <name>Quillory::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>past</source>
        <extracomment>The first bar of a drawing of months: what is expired already.</extracomment>
        <translation>passerat</translation>
    </message>
    <message>
        <source>What expires in the next twelve months</source>
        <translation>Vad som går ut de närmaste tolv månaderna</translation>
    </message>
    <message>
        <source>Of what fewest are left, beside the threshold</source>
        <translation>Det som det finns minst av, bredvid gränsen</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Summor</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n rad</numerusform>
            <numerusform>%n rader</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Strings</name>
    <message>
        <source>Inventory List</source>
        <translation>Listor</translation>
    </message>
    <message>
        <source>Do you want to delete the selected row?</source>
        <translation>Vill du ta bort den markerade raden?</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>New Inventory List</source>
        <translation>Ny lista</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Antal</translation>
    </message>
    <message>
        <source>Please specifiy a name. Empty name is not allowed.</source>
        <translation>Ange ett namn.</translation>
    </message>
    <message>
        <source>Do you want to delete all rows in list &apos;%s&apos;?</source>
        <translation>Vill du ta bort alla rader i listan ”%s”?</translation>
    </message>
    <message>
        <source>Do you want to delete list &apos;%s&apos; and all its data?</source>
        <translation>Vill du ta bort listan ”%s” med allt innehåll?</translation>
    </message>
    <message>
        <source>Inventory List Options</source>
        <translation>Egenskaper</translation>
    </message>
    <message>
        <source>Quillory is unable to open the data file. Please make sure the storage card is inserted.</source>
        <translation>Datafilen kan inte öppnas. Kontrollera att minneskortet sitter i.</translation>
    </message>
    <message>
        <source>The data file cannot be found. Do you want to create a new data file at the same location? Tap No to try to locate it again.</source>
        <translation>Datafilen hittas inte. Vill du skapa en ny på samma plats? Tryck på Nej för att leta en gång till.</translation>
    </message>
    <message>
        <source>No record matched the criteria.</source>
        <translation>Ingen rad uppfyller villkoret.</translation>
    </message>
    <message>
        <source>Import is completed with errors. Data may not be imported properly.</source>
        <translation>Importen slutade med fel. Data kan saknas.</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Checkbox</source>
        <translation>Kryssruta</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Pris</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Heltal</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Antal</translation>
    </message>
    <message>
        <source>Expiry Date</source>
        <translation>Utgångsdatum</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>contains</source>
        <extracomment>The conditions stand between a column and a value: Price &quot;greater than&quot; 3.50.</extracomment>
        <translation>innehåller</translation>
    </message>
    <message>
        <source>equals to</source>
        <translation>lika med</translation>
    </message>
    <message>
        <source>not equals to</source>
        <translation>inte lika med</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>större än</translation>
    </message>
    <message>
        <source>greater than or equals to</source>
        <translation>större än eller lika med</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>mindre än</translation>
    </message>
    <message>
        <source>less than or equals to</source>
        <translation>mindre än eller lika med</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>These stand before a date: Opened &quot;on or after&quot; 10 May.</extracomment>
        <translation>den</translation>
    </message>
    <message>
        <source>not on</source>
        <translation>inte den</translation>
    </message>
    <message>
        <source>after</source>
        <translation>efter</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>från och med</translation>
    </message>
    <message>
        <source>before</source>
        <translation>före</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>till och med</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Meny</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Ny</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Unable to create list table!</source>
        <translation>Tabellen över listor kan inte skapas!</translation>
    </message>
    <message>
        <source>Unable to create user database!</source>
        <translation>Databasen kan inte skapas!</translation>
    </message>
    <message>
        <source>Unable to create inventory table!</source>
        <translation>Listans tabell kan inte skapas!</translation>
    </message>
    <message>
        <source>Unable to open data file. Error: %d</source>
        <translation>Datafilen kan inte öppnas. Fel: %d</translation>
    </message>
    <message>
        <source>Out of memory!</source>
        <translation>Minnet räcker inte!</translation>
    </message>
    <message>
        <source>To begin using Quillory, please choose a name and location to store all your inventory lists. Tap OK to continue.</source>
        <translation>Välj först namn och plats för filen där alla dina listor ska ligga. Tryck på OK för att fortsätta.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>to colour</source>
        <extracomment>Stands between a number and a colour: &quot;Enable row colour when count is less than or equal to&quot; 3 &quot;to colour&quot; red.</extracomment>
        <translation>i</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>Fält:</translation>
    </message>
    <message>
        <source>Condition:</source>
        <translation>Villkor:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Värde:</translation>
    </message>
    <message>
        <source>Inventory Database</source>
        <translation>Quillorys data</translation>
    </message>
    <message>
        <source>Text Files</source>
        <translation>Textfiler</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>low</source>
        <extracomment>Beside the name of a row of which few are left; short.</extracomment>
        <translation>få kvar</translation>
    </message>
    <message>
        <source>expired</source>
        <extracomment>Beside the name of a row whose expiry date is reached; short.</extracomment>
        <translation>utgången</translation>
    </message>
</context>
</TS>
