<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>Calendar</name>
    <message>
        <source>Previous month</source>
        <translation>Mese precedente</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mese successivo</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Anno</translation>
    </message>
</context>
<context>
    <name>Colours</name>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>Blu marino</translation>
    </message>
    <message>
        <source>Azure</source>
        <translation>Azzurro</translation>
    </message>
    <message>
        <source>Midnight blue</source>
        <translation>Blu notte</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>Bordeaux</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Pale pink</source>
        <translation>Rosa pallido</translation>
    </message>
    <message>
        <source>Slate blue</source>
        <translation>Blu ardesia</translation>
    </message>
    <message>
        <source>Dark plum</source>
        <translation>Prugna</translation>
    </message>
    <message>
        <source>Pale cyan</source>
        <translation>Ciano pallido</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Arancione</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Marrone</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>Verde acceso</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Verde acqua</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Oliva</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Blu pallido</translation>
    </message>
    <message>
        <source>Periwinkle</source>
        <translation>Pervinca</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Pale orange</source>
        <translation>Arancio pallido</translation>
    </message>
    <message>
        <source>Dusky blue</source>
        <translation>Blu polvere</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Celeste</translation>
    </message>
    <message>
        <source>Leaf green</source>
        <translation>Verde foglia</translation>
    </message>
    <message>
        <source>Pale green</source>
        <translation>Verde pallido</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavanda</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Viola</translation>
    </message>
    <message>
        <source>Mauve</source>
        <translation>Malva</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Porpora</translation>
    </message>
    <message>
        <source>Amber</source>
        <translation>Ambra</translation>
    </message>
    <message>
        <source>Sage</source>
        <translation>Salvia</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grigio</translation>
    </message>
    <message>
        <source>Raspberry</source>
        <translation>Lampone</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Verde scuro</translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>Prints a line per list, in the order of their names: name TAB number of rows.

  --json               name, rows, icon and columns of each list
</source>
        <translation>Stampa una riga per lista, in ordine di nome: nome TAB numero di righe.

  --json               nome, righe, icona e colonne di ogni lista
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
        <translation>Crea una lista e non stampa nulla. Le sue prime colonne sono Name e Quantity.

  --column NAME:TYPE   aggiunge una colonna; TYPE è string, checkbox, price,
                       integer, date o expiry (che non ha bisogno di NAME). Si
                       può ripetere.
  --warn-count N       avvisa delle righe la cui quantità è N o meno
  --warn-expiry        avvisa delle righe la cui scadenza è arrivata
  --icon N             icona da 0 a 42
  --create             crea il file dei dati se non esiste
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
        <translation>  --where CONDITION    solo le righe che la soddisfano: &quot;COLUMN CONDITION
                       VALUE&quot;, come &quot;Name contains tea&quot;, &quot;Quantity &lt; 3&quot;,
                       &quot;Opened = Checked&quot;. Le condizioni sono quelle dei
                       filtri, con le loro parole inglesi o = != &gt; &gt;= &lt; &lt;=.
                       Come lì, != su testi, numeri e prezzi trova ciò che
                       trova =. I numeri si leggono come sono mostrati. Si può
                       ripetere: devono valere tutte.
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
        <translation>Stampa una riga con i nomi delle colonne, poi le righe in ordine di nome, con
TAB tra i campi. I caratteri di controllo nei testi diventano spazi.

  --sort COLUMN        in ordine crescente di una colonna
  --descending         nell&apos;ordine inverso
  --no-header          senza la riga dei nomi delle colonne
  --json               un oggetto per riga; date come YYYY-MM-DD, valori
                       mancanti come null
</translation>
    </message>
    <message>
        <source>Looks for a text in every column of every list, whatever its case and accents, and prints a
line per value that has it: list TAB row TAB column TAB value.

  --json               list, row, column and text of each
</source>
        <translation>Cerca un testo in tutte le colonne di tutte le liste, senza badare a maiuscole
e accenti, e stampa una riga per ogni valore che lo contiene: lista TAB riga
TAB colonna TAB valore.

  --json               lista, riga, colonna e testo di ciascuno
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
        <translation>Scrive le righe come testo, come «Esporta lista»: UTF-16, TAB tra i campi, CR
LF dopo ogni riga. Senza FILE, o con -, sullo standard output. Un FILE
esistente viene sostituito.

  --dates iso          date come YYYY-MM-DD, lette ovunque allo stesso modo
  --format NAME        csv o tsv, una tabella per altri programmi in UTF-8 con
                       i nomi delle colonne nella prima riga: date come
                       YYYY-MM-DD, punto decimale, true e false; json, come lo
                       stampa show; o html, una pagina da leggere
  --all DIR            tutte le liste in una cartella, creata se serve: un file
                       per lista, csv se non è detto altro, e lists.json che le
                       descrive
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
        <translation>Aggiunge una riga per ogni riga di un file di testo, come «Importa lista», e
stampa quante sono entrate. FILE - è lo standard input. Ogni riga deve finire
con CR LF, anche l&apos;ultima.

  --columns &quot;A,B&quot;      le colonne riempite dai campi di una riga; quelle non
                       nominate seguono nell&apos;ordine della lista, che vale anche
                       senza questa opzione
  --encoding NAME      la codifica del file: utf-8, utf-16 o il numero di una
                       tabella codici come 1252
  --format NAME        csv o tsv, tabelle come le scrive export: la prima riga
                       nomina colonne; in csv i campi sono separati da virgola,
                       punto e virgola o TAB. Entrano tutte le righe o nessuna
  --match COLUMN       di una tabella: cambia la riga che ha lo stesso valore
                       in questa colonna, e ne aggiunge una dove non c&apos;è
  --all DIR            crea ogni lista descritta da lists.json in una cartella,
                       e le stampa
  --create             con --all: crea il file dei dati se non esiste
  --dry-run            non salva nulla, stampa quante righe entrerebbero
</translation>
    </message>
    <message>
        <source>Prints a line per total of a number or price column: name TAB total, with a point before
decimals.

  --json               name and total of each
</source>
        <translation>Stampa una riga per totale di una colonna di numeri o prezzi: nome TAB totale,
con il punto decimale.

  --json               nome e totale di ciascuna
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
        <translation>Stampa le righe delle liste con gli avvisi attivi: lista TAB riga TAB «low»,
«expired» o la data in cui la riga scade.

  --within DAYS        anche le righe che scadono entro tanti giorni
  --json               lista, riga, stato e quantità o data di ciascuna
  --ics                stampa invece un calendario di tutte le scadenze, come
                       iCalendar; con --within solo fino ad allora
  --notify             non stampa nulla, ma mostra al più una volta al giorno,
                       in una notifica del desktop, ciò che richiede attenzione
                       dall&apos;ultima volta. Toccarla apre la lista; fino ad
                       allora, o finché non viene chiusa, il comando aspetta.

Termina con 3 se qualcosa richiede attenzione, con 0 altrimenti.
</translation>
    </message>
    <message>
        <source>Turns a notification each morning of what is due on or off, or prints whether it is on.
Needs systemd, whose timer quillory-reminders then runs &quot;quillory due --notify&quot;.
</source>
        <translation>Attiva o disattiva una notifica ogni mattina di ciò che richiede attenzione, o
stampa se è attiva. Richiede systemd, il cui timer quillory-reminders esegue
allora «quillory due --notify».
</translation>
    </message>
    <message>
        <source>Adds a row with these values and prints 1. Numbers are read as they are shown, a checkbox is
Checked or Unchecked.

  --dry-run            stores nothing
</source>
        <translation>Aggiunge una riga con questi valori e stampa 1. I numeri si leggono come sono
mostrati, una casella è Checked o Unchecked.

  --dry-run            non salva nulla
</translation>
    </message>
    <message>
        <source>Gives all rows that meet the conditions these values, or none of them if one cannot be
stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Dà questi valori a tutte le righe che soddisfano le condizioni, o a nessuna se
una non si può salvare, e stampa quante sono.

  --dry-run            non salva nulla
</translation>
    </message>
    <message>
        <source>Counts all rows that meet the conditions up by +N or down by -N, or none of them if one
cannot be stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Aumenta di +N o diminuisce di -N la quantità di tutte le righe che soddisfano
le condizioni, o di nessuna se una non si può salvare, e stampa quante sono.

  --dry-run            non salva nulla
</translation>
    </message>
    <message>
        <source>Deletes all rows that meet the conditions, or none of them if one cannot be, and prints how
many there are.

  --dry-run            deletes nothing
</source>
        <translation>Elimina tutte le righe che soddisfano le condizioni, o nessuna se una non si
può eliminare, e stampa quante sono.

  --dry-run            non elimina nulla
</translation>
    </message>
    <message>
        <source>Gives a list another name and prints nothing.

  --dry-run            stores nothing
</source>
        <translation>Dà un altro nome a una lista e non stampa nulla.

  --dry-run            non salva nulla
</translation>
    </message>
    <message>
        <source>Deletes a list with all its rows and prints how many these are.

  --dry-run            deletes nothing
</source>
        <translation>Elimina una lista con tutte le sue righe e stampa quante erano.

  --dry-run            non elimina nulla
</translation>
    </message>
    <message>
        <source>Reads the whole data file. Prints &quot;ok&quot;, or what is wrong and exits with 1.
</source>
        <translation>Legge tutto il file dei dati. Stampa «ok», o ciò che non va e termina con 1.
</translation>
    </message>
    <message>
        <source>Writes a consistent copy of the data file, also while it is in use. FILE must not exist.
</source>
        <translation>Scrive una copia coerente del file dei dati, anche mentre è in uso. FILE non
deve esistere.
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
        <translation>Dopo ogni esecuzione che ha cambiato liste o righe del file dei dati
configurato se ne conserva una copia: le ultime tre, o quante ne dice
KeptCopies=0...9 nelle impostazioni, e di più vecchie finché tutte insieme non
superano 32 MB. Vengono eliminate 90 giorni dopo la scomparsa del file.

Senza opzioni stampa una riga per copia, la più recente per prima: numero TAB
ora TAB byte, e poi una riga per ogni lista leggibile dal file dei dati stesso,
anche se è danneggiato: salvage TAB lista TAB righe TAB ciò che è perduto.
Altrimenti crea il nuovo file dei dati FILE, che non deve esistere:

  --from N             dalla copia N
  --salvage            da ciò che si può ancora leggere del file dei dati, e
                       stampa che cos&apos;è; il file dei dati viene solo letto
  --json               un oggetto per copia e per lista
</translation>
    </message>
    <message>
        <source>none so far</source>
        <translation>nessuno finora</translation>
    </message>
    <message>
        <source>  --data FILE          works on another data file than the configured one (%1)

Here dates are written %2 and numbers %3, but in text files with a point and no
groups. Text files are written in UTF-16 behind a byte-order mark, and read in code page
%4 where there is none.
</source>
        <extracomment>%1 is the data file, %2 such as dd/MM/yyyy, %3 such as 1,234.50, %4 such as 1252.</extracomment>
        <translation>  --data FILE          lavora su un altro file dei dati invece di quello
                       configurato (%1)

Qui le date si scrivono %2 e i numeri %3, ma nei file di testo con il punto e
senza gruppi. I file di testo si scrivono in UTF-16 dopo un segno d&apos;ordine dei
byte, e si leggono nella tabella codici %4 dove non c&apos;è.
</translation>
    </message>
    <message>
        <source>
Opens the window, showing LIST if it is named. The commands work without it:

</source>
        <translation>
Apre la finestra, su LIST se è nominata. I comandi ne fanno a meno:

</translation>
    </message>
    <message>
        <source>
  --new-list           opens the window with the page of a new list
  --help               help, on a command if one is named
  --version            the version
</source>
        <translation>
  --new-list           apre la finestra sulla pagina di una nuova lista
  --help               aiuto, su un comando se è nominato
  --version            la versione
</translation>
    </message>
    <message>
        <source>
Exit status: 0 done, 1 failed, 2 wrong usage, 3 something is due.
</source>
        <translation>
Codice d&apos;uscita: 0 fatto, 1 errore, 2 uso sbagliato, 3 qualcosa richiede
attenzione.
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
        <translation>Scrive una lista da stampare o inviare: le sue righe, con evidenziato ciò che
scarseggia o è scaduto, i totali, e grafici di ciò che scade nei prossimi
dodici mesi e di ciò di cui resta meno. Senza FILE, o con -, sullo standard
output. Un FILE esistente viene sostituito.

  --all                tutte le liste in un solo rapporto
  --format NAME        pdf, oppure html per una pagina che non ha bisogno di
                       altri file; altrimenti come finisce il nome di FILE, o
                       pdf
</translation>
    </message>
    <message>
        <source>Prints what merging OTHER, another device&apos;s copy of the data file, would do, as merge prints it.
Changes nothing. Exits with 3 if OTHER has something that the data file has not.

  --base FILE          what both come from, where no kept copy is
  --json               an object per line
</source>
        <translation>Mostra che cosa farebbe la riunione con OTHER, la copia del file di dati di un altro dispositivo,
come lo mostra merge. Non cambia nulla. Termina con 3 se OTHER ha qualcosa che manca al file di
dati.

  --base FILE          da che cosa derivano entrambi, se non ne resta una copia
  --json               un oggetto per riga
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
        <translation>Riunisce il file di dati e OTHER, la sua copia di un altro dispositivo, nel file di dati. OTHER
viene solo letto. Mostra una riga per ogni cosa venuta o andata, e per ogni valore che entrambi
avevano modificato: che cosa TAB elenco TAB riga TAB colonna TAB valore TAB altro valore. Prima si
conservano copie di entrambi i file.

  --base FILE          da che cosa derivano entrambi, se non ne resta una copia
  --dry-run            non salva nulla
  --json               un oggetto per riga
</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>Enable row colour when count is less than or equal to</source>
        <translation>Colora la riga se la quantità è minore o uguale a</translation>
    </message>
    <message>
        <source>Enable row colour when expiry date is reached to colour</source>
        <translation>Colora la riga quando arriva la scadenza, in</translation>
    </message>
    <message>
        <source>Display list using landscape mode</source>
        <translation>Mostra le liste in orizzontale</translation>
    </message>
    <message>
        <source>Landscape (right-handed)</source>
        <translation>Orizzontale (destrimani)</translation>
    </message>
    <message>
        <source>Landscape (left-handed)</source>
        <translation>Orizzontale (mancini)</translation>
    </message>
    <message>
        <source>Use alternate row colour</source>
        <translation>Alterna il colore delle righe</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Sposta giù</translation>
    </message>
</context>
<context>
    <name>DataFileOpener</name>
    <message>
        <source>The data file is damaged. There is a good copy of %1.

Do you want to go on with it? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Il file dei dati è danneggiato. Esiste una buona copia del %1.

Continuare con quella? Viene scritta in un nuovo file; quello danneggiato resta com’è.</translation>
    </message>
    <message>
        <source>The new file could not be written. Error: %1</source>
        <translation>Impossibile scrivere il nuovo file. Errore: %1</translation>
    </message>
    <message>
        <source>Beside the data file lay the journal of another file. It is kept as %1.</source>
        <translation>Accanto al file dei dati c’era il journal di un altro file. È conservato come %1.</translation>
    </message>
    <message>
        <source>Another program has written into the data file. What it holds now: %1, %2.

Do you want to go on with that? It is written to a new file; the old one stays as it is.</source>
        <translation>Un altro programma ha scritto nel file dei dati. Ora contiene: %1, %2.

Continuare così? Il contenuto viene scritto in un nuovo file; il vecchio resta com’è.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file: %1, %2.

Do you want to go on with that? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Ciò che si può ancora leggere del file danneggiato: %1, %2.

Continuare così? Viene scritto in un nuovo file; quello danneggiato resta com’è.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n riga</numerusform>
            <numerusform>%n righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s)</source>
        <translation>
            <numerusform>%n lista</numerusform>
            <numerusform>%n liste</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Deletions</name>
    <message>
        <source>The list &apos;%1&apos; was deleted.</source>
        <translation>La lista «%1» è stata eliminata.</translation>
    </message>
    <message>
        <source>All rows of &apos;%1&apos; were deleted.</source>
        <translation>Tutte le righe di «%1» sono state eliminate.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was deleted.</source>
        <translation>«%1» è stato eliminato.</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Welcome to Quillory</source>
        <translation>Benvenuto</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Column Definition</source>
        <translation>Colonna</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Import Column Order</source>
        <translation>Ordine colonne</translation>
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
        <translation>Scatola</translation>
    </message>
    <message>
        <source>Jar</source>
        <translation>Barattolo</translation>
    </message>
    <message>
        <source>Refrigerator</source>
        <translation>Frigorifero</translation>
    </message>
    <message>
        <source>Freezer</source>
        <translation>Congelatore</translation>
    </message>
    <message>
        <source>Apple</source>
        <translation>Mela</translation>
    </message>
    <message>
        <source>Carrot</source>
        <translation>Carota</translation>
    </message>
    <message>
        <source>Bread</source>
        <translation>Pane</translation>
    </message>
    <message>
        <source>Meat</source>
        <translation>Carne</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>Pesce</translation>
    </message>
    <message>
        <source>Milk</source>
        <translation>Latte</translation>
    </message>
    <message>
        <source>Bottle</source>
        <translation>Bottiglia</translation>
    </message>
    <message>
        <source>Wine</source>
        <translation>Vino</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>Caffè</translation>
    </message>
    <message>
        <source>Baby bottle</source>
        <translation>Biberon</translation>
    </message>
    <message>
        <source>Pills</source>
        <translation>Compresse</translation>
    </message>
    <message>
        <source>First aid</source>
        <translation>Primo soccorso</translation>
    </message>
    <message>
        <source>Cosmetics</source>
        <translation>Cosmetici</translation>
    </message>
    <message>
        <source>Cleaning spray</source>
        <translation>Spruzzatore</translation>
    </message>
    <message>
        <source>Shirt</source>
        <translation>Camicia</translation>
    </message>
    <message>
        <source>Shoe</source>
        <translation>Scarpa</translation>
    </message>
    <message>
        <source>Jewel</source>
        <translation>Gioiello</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Orologio</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Monete</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Francobollo</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Libro</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
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
        <translation>Fotocamera</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefono</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Pila</translation>
    </message>
    <message>
        <source>Plug</source>
        <translation>Spina</translation>
    </message>
    <message>
        <source>Bulb</source>
        <translation>Lampadina</translation>
    </message>
    <message>
        <source>Hammer</source>
        <translation>Martello</translation>
    </message>
    <message>
        <source>Screw</source>
        <translation>Vite</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Vernice</translation>
    </message>
    <message>
        <source>Plant</source>
        <translation>Pianta</translation>
    </message>
    <message>
        <source>Paw</source>
        <translation>Zampa</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Chiave</translation>
    </message>
</context>
<context>
    <name>ListDefinitions</name>
    <message>
        <source>Another device has deleted this list.</source>
        <translation>Un altro dispositivo ha eliminato questa lista.</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>it is the data file itself</source>
        <translation>è il file dei dati stesso</translation>
    </message>
    <message>
        <source>it is the name of the data file&apos;s journal</source>
        <translation>è il nome del journal del file dei dati</translation>
    </message>
</context>
<context>
    <name>ListTransfer</name>
    <message numerus="yes">
        <source>The import was cancelled. %n row(s) are in the list already.</source>
        <translation>
            <numerusform>Importazione annullata. %n riga è già nella lista.</numerusform>
            <numerusform>Importazione annullata. %n righe sono già nella lista.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates such as %1 were read in the form %2.</source>
        <extracomment>%1 is such as 10/05/2026, %2 such as dd/MM/yyyy.</extracomment>
        <translation>Date come %1 sono state lette nella forma %2.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>Non è un file normale.</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>Impossibile scrivere il file: %1</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are in the file. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Questa lista è leggibile solo in parte: nel file c’è %n riga. «quillory restore» mostra le copie e ciò che si può salvare.</numerusform>
            <numerusform>Questa lista è leggibile solo in parte: nel file ci sono %n righe. «quillory restore» mostra le copie e ciò che si può salvare.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>List Properties...</source>
        <translation>Proprietà...</translation>
    </message>
    <message>
        <source>Rename List</source>
        <translation>Rinomina lista</translation>
    </message>
    <message>
        <source>Import List...</source>
        <translation>Importa lista...</translation>
    </message>
    <message>
        <source>Export List...</source>
        <translation>Esporta lista...</translation>
    </message>
    <message>
        <source>Delete List...</source>
        <translation>Elimina lista...</translation>
    </message>
    <message>
        <source>Delete All Records...</source>
        <translation>Elimina tutte le righe...</translation>
    </message>
    <message>
        <source>Open Read Only</source>
        <translation>Apri in sola lettura</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Opzioni...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Informazioni...</translation>
    </message>
    <message>
        <source>Add Expiry Date Column</source>
        <translation>Aggiungi scadenza</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Modify...</source>
        <translation>Modifica...</translation>
    </message>
    <message>
        <source>Create Copy</source>
        <translation>Crea copia</translation>
    </message>
    <message>
        <source>View Summary...</source>
        <translation>Mostra totali...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Trova...</translation>
    </message>
    <message>
        <source>Set Filters...</source>
        <translation>Imposta filtri...</translation>
    </message>
    <message>
        <source>Clear Filters</source>
        <translation>Rimuovi filtri</translation>
    </message>
    <message>
        <source>Add 1</source>
        <translation>Aggiungi 1</translation>
    </message>
    <message>
        <source>Subtract 1</source>
        <translation>Togli 1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Rimuovi tutti</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserisci</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Quillory::ColourGrid</name>
    <message>
        <source>Colours</source>
        <translation>Colori</translation>
    </message>
</context>
<context>
    <name>Quillory::ColumnsPanel</name>
    <message>
        <source>A new column goes before the selected one. Once the list is made its columns stay.</source>
        <translation>Una nuova colonna va prima di quella selezionata. Creata la lista, le sue colonne non cambiano più.</translation>
    </message>
</context>
<context>
    <name>Quillory::DataFileSession</name>
    <message>
        <source>The change could not be saved. Error: %1

Tap Retry to open the data file again.</source>
        <translation>Impossibile salvare la modifica. Errore: %1

Tocca Riprova per riaprire il file dei dati.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. The old one is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>Al posto del file dei dati c’è un altro file. Il vecchio è conservato come copia; «quillory restore» mostra le copie.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. No copy could be kept of the old one.</source>
        <translation>Al posto del file dei dati c’è un altro file. Non è stato possibile conservare una copia del vecchio.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. What it held is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>Il file dei dati non è più al suo posto. Il contenuto è conservato come copia; «quillory restore» mostra le copie.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. No copy could be kept of it.</source>
        <translation>Il file dei dati non è più al suo posto. Non è stato possibile conservarne una copia.</translation>
    </message>
    <message>
        <source>No copy of the data file could be kept. Error: %1</source>
        <translation>Impossibile conservare una copia del file dei dati. Errore: %1</translation>
    </message>
</context>
<context>
    <name>Quillory::DateField</name>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>nessuna data</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>Typed in place of a date, in small letters.</extracomment>
        <translation>oggi</translation>
    </message>
    <message>
        <source>not a date</source>
        <translation>non è una data</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date. Type it as in %2, or pick it from the calendar.</source>
        <translation>«%1» non è una data. Scrivila come %2 o sceglila dal calendario.</translation>
    </message>
</context>
<context>
    <name>Quillory::DeviceMerge</name>
    <message>
        <source>Another device has changed the lists, and so have you. Do you want to bring both together?</source>
        <translation>Un altro dispositivo ha modificato gli elenchi, e anche Lei. Riunire le due versioni?</translation>
    </message>
    <message>
        <source>Beside the data file lies another device&apos;s version, &quot;%1&quot;. Do you want to bring both together?</source>
        <translation>Accanto al file di dati c’è la versione di un altro dispositivo, «%1». Riunirle?</translation>
    </message>
    <message>
        <source>The two versions could not be brought together; both are as they were. Error: %1</source>
        <translation>Le due versioni non si sono potute riunire; sono rimaste com’erano. Errore: %1</translation>
    </message>
</context>
<context>
    <name>Quillory::FilterBar</name>
    <message>
        <source>Clear</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 righe su %2</translation>
    </message>
</context>
<context>
    <name>Quillory::FiltersPage</name>
    <message>
        <source>No filters yet. Tap Add to make one.</source>
        <translation>Ancora nessun filtro. Tocca Aggiungi per crearne uno.</translation>
    </message>
</context>
<context>
    <name>Quillory::GeneralPanel</name>
    <message>
        <source>Icon</source>
        <translation>Icona</translation>
    </message>
</context>
<context>
    <name>Quillory::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
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
        <translation>Ancora nessuna lista. Tocca Nuovo per crearne una.</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGrid</name>
    <message>
        <source>Icons</source>
        <translation>Icone</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGridPage</name>
    <message>
        <source>Icon</source>
        <translation>Icona</translation>
    </message>
</context>
<context>
    <name>Quillory::IconPicker</name>
    <message>
        <source>Next icon</source>
        <translation>Icona successiva</translation>
    </message>
    <message>
        <source>Previous icon</source>
        <translation>Icona precedente</translation>
    </message>
    <message>
        <source>All icons</source>
        <translation>Tutte le icone</translation>
    </message>
</context>
<context>
    <name>Quillory::MainFrame</name>
    <message>
        <source>Choose a list to see its rows.</source>
        <translation>Scegli una lista per vederne le righe.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Some lists cannot be read. Error: %1</source>
        <translation>Alcune liste non si possono leggere. Errore: %1</translation>
    </message>
    <message>
        <source>Updated from another device</source>
        <translation>Aggiornato da un altro dispositivo</translation>
    </message>
</context>
<context>
    <name>Quillory::MenuKey</name>
    <message>
        <source>opens a menu</source>
        <translation>apre un menu</translation>
    </message>
</context>
<context>
    <name>Quillory::MergePage</name>
    <message>
        <source>name of the list</source>
        <translation>nome dell’elenco</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>icona</translation>
    </message>
    <message>
        <source>warning of counts</source>
        <translation>avviso di quantità</translation>
    </message>
    <message>
        <source>warning of expiry</source>
        <translation>avviso di scadenza</translation>
    </message>
    <message>
        <source>count to warn at</source>
        <translation>quantità dell’avviso</translation>
    </message>
    <message>
        <source>colour of counts</source>
        <translation>colore delle quantità</translation>
    </message>
    <message>
        <source>colour of expiry</source>
        <translation>colore della scadenza</translation>
    </message>
    <message>
        <source>The list came from the other device.</source>
        <translation>L’elenco viene dall’altro dispositivo.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device.</source>
        <translation>L’elenco è stato eliminato sull’altro dispositivo.</translation>
    </message>
    <message>
        <source>The list was deleted here and changed on the other device: it is back.</source>
        <translation>L’elenco è stato eliminato qui e modificato sull’altro dispositivo: è tornato.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device and changed here: it stays.</source>
        <translation>L’elenco è stato eliminato sull’altro dispositivo e modificato qui: rimane.</translation>
    </message>
    <message>
        <source>Both devices had made this list: it is one now.</source>
        <translation>Entrambi i dispositivi avevano creato questo elenco: ora è uno solo.</translation>
    </message>
    <message>
        <source>%1: came from the other device.</source>
        <translation>%1: viene dall’altro dispositivo.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device.</source>
        <translation>%1: riga eliminata sull’altro dispositivo.</translation>
    </message>
    <message>
        <source>%1: was deleted here and changed on the other device, and is back.</source>
        <translation>%1: riga eliminata qui e modificata sull’altro dispositivo; è tornata.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device and changed here, and stays.</source>
        <translation>%1: riga eliminata sull’altro dispositivo e modificata qui; rimane.</translation>
    </message>
    <message>
        <source>%1: a copy of the row has the other values.</source>
        <translation>%1: una copia della riga ha gli altri valori.</translation>
    </message>
    <message>
        <source>%1: %2 came in the place of %3.</source>
        <extracomment>Such as &quot;Tea, Quantity: 5 came in the place of 3.&quot;</extracomment>
        <translation>%1: %2 al posto di %3.</translation>
    </message>
    <message>
        <source>%1: both devices had changed it. It is %2; the other was %3.</source>
        <translation>%1: modificato su entrambi i dispositivi. È %2; l’altro era %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted. It is %2; the other was %3.</source>
        <translation>%1: contato su entrambi i dispositivi. È %2; l’altro era %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted beyond the limit. It is %2; the other was %3.</source>
        <translation>%1: contato oltre il limite su entrambi i dispositivi. È %2; l’altro era %3.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A row&apos;s name and that of a column.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>In the place of a value that is not there.</extracomment>
        <translation>niente</translation>
    </message>
    <message>
        <source>Brought together</source>
        <translation>Versioni riunite</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>E un altro.</numerusform>
            <numerusform>E altri %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>What both come from was not known any more. So nothing was deleted, and counts that both had changed were not added up.</source>
        <translation>L’origine comune non era più nota. Perciò nulla è stato eliminato e le quantità modificate da entrambi non sono state sommate.</translation>
    </message>
</context>
<context>
    <name>Quillory::OptionsPanel</name>
    <message>
        <source>Only lists with an expiry date column can warn of dates.</source>
        <translation>Solo le liste con una scadenza possono avvisarne.</translation>
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
        <translation>Guida</translation>
    </message>
    <message>
        <source>Do you want to discard what you have entered?</source>
        <translation>Scartare ciò che hai scritto?</translation>
    </message>
</context>
<context>
    <name>Quillory::RowsView</name>
    <message>
        <source>read-only</source>
        <translation>sola lettura</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are shown. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Questa lista è leggibile solo in parte: si vede %n riga. «quillory restore» mostra le copie e ciò che si può salvare.</numerusform>
            <numerusform>Questa lista è leggibile solo in parte: si vedono %n righe. «quillory restore» mostra le copie e ciò che si può salvare.</numerusform>
        </translation>
    </message>
    <message>
        <source>No row meets the filters.</source>
        <translation>Nessuna riga soddisfa i filtri.</translation>
    </message>
    <message>
        <source>This list has no rows.</source>
        <translation>Questa lista non ha righe.</translation>
    </message>
    <message>
        <source>No rows yet. Tap New to add one.</source>
        <translation>Ancora nessuna riga. Tocca Nuovo per aggiungerne una.</translation>
    </message>
    <message>
        <source>This list can be read only in part, so nothing is summed up. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>Questa lista è leggibile solo in parte, perciò non si somma nulla. «quillory restore» mostra le copie e ciò che si può salvare.</translation>
    </message>
</context>
<context>
    <name>Quillory::SummaryPage</name>
    <message>
        <source>Totals</source>
        <translation>Totali</translation>
    </message>
</context>
<context>
    <name>Quillory::ThresholdEdit</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>The least and the greatest number that can be typed.</extracomment>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Meno</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Più</translation>
    </message>
</context>
<context>
    <name>Quillory::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>past</source>
        <extracomment>The first bar of a drawing of months: what is expired already.</extracomment>
        <translation>passato</translation>
    </message>
    <message>
        <source>What expires in the next twelve months</source>
        <translation>Che cosa scade nei prossimi dodici mesi</translation>
    </message>
    <message>
        <source>Of what fewest are left, beside the threshold</source>
        <translation>Di che cosa resta meno, accanto al limite</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totali</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n riga</numerusform>
            <numerusform>%n righe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Strings</name>
    <message>
        <source>Inventory List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Do you want to delete the selected row?</source>
        <translation>Eliminare la riga selezionata?</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>New Inventory List</source>
        <translation>Nuova lista</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantità</translation>
    </message>
    <message>
        <source>Please specifiy a name. Empty name is not allowed.</source>
        <translation>Scrivi un nome.</translation>
    </message>
    <message>
        <source>Do you want to delete all rows in list &apos;%s&apos;?</source>
        <translation>Eliminare tutte le righe della lista «%s»?</translation>
    </message>
    <message>
        <source>Do you want to delete list &apos;%s&apos; and all its data?</source>
        <translation>Eliminare la lista «%s» con tutto il contenuto?</translation>
    </message>
    <message>
        <source>Inventory List Options</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Quillory is unable to open the data file. Please make sure the storage card is inserted.</source>
        <translation>Impossibile aprire il file dei dati. Controlla che la scheda di memoria sia inserita.</translation>
    </message>
    <message>
        <source>The data file cannot be found. Do you want to create a new data file at the same location? Tap No to try to locate it again.</source>
        <translation>Impossibile trovare il file dei dati. Crearne uno nuovo nello stesso posto? Tocca No per cercarlo di nuovo.</translation>
    </message>
    <message>
        <source>No record matched the criteria.</source>
        <translation>Nessuna riga soddisfa la condizione.</translation>
    </message>
    <message>
        <source>Import is completed with errors. Data may not be imported properly.</source>
        <translation>L’importazione è terminata con errori. Potrebbero mancare dei dati.</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Checkbox</source>
        <translation>Casella</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prezzo</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Intero</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Quantità</translation>
    </message>
    <message>
        <source>Expiry Date</source>
        <translation>Scadenza</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>contains</source>
        <extracomment>The conditions stand between a column and a value: Price &quot;greater than&quot; 3.50.</extracomment>
        <translation>contiene</translation>
    </message>
    <message>
        <source>equals to</source>
        <translation>uguale a</translation>
    </message>
    <message>
        <source>not equals to</source>
        <translation>diverso da</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>maggiore di</translation>
    </message>
    <message>
        <source>greater than or equals to</source>
        <translation>maggiore o uguale a</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>minore di</translation>
    </message>
    <message>
        <source>less than or equals to</source>
        <translation>minore o uguale a</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>These stand before a date: Opened &quot;on or after&quot; 10 May.</extracomment>
        <translation>il</translation>
    </message>
    <message>
        <source>not on</source>
        <translation>non il</translation>
    </message>
    <message>
        <source>after</source>
        <translation>dopo il</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>dal</translation>
    </message>
    <message>
        <source>before</source>
        <translation>prima del</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>fino al</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Unable to create list table!</source>
        <translation>Impossibile creare la tabella delle liste!</translation>
    </message>
    <message>
        <source>Unable to create user database!</source>
        <translation>Impossibile creare il database!</translation>
    </message>
    <message>
        <source>Unable to create inventory table!</source>
        <translation>Impossibile creare la tabella della lista!</translation>
    </message>
    <message>
        <source>Unable to open data file. Error: %d</source>
        <translation>Impossibile aprire il file dei dati. Errore: %d</translation>
    </message>
    <message>
        <source>Out of memory!</source>
        <translation>Memoria esaurita!</translation>
    </message>
    <message>
        <source>To begin using Quillory, please choose a name and location to store all your inventory lists. Tap OK to continue.</source>
        <translation>Per cominciare scegli nome e posto del file che conterrà tutte le tue liste. Tocca OK per continuare.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>to colour</source>
        <extracomment>Stands between a number and a colour: &quot;Enable row colour when count is less than or equal to&quot; 3 &quot;to colour&quot; red.</extracomment>
        <translation>in</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>Campo:</translation>
    </message>
    <message>
        <source>Condition:</source>
        <translation>Condizione:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valore:</translation>
    </message>
    <message>
        <source>Inventory Database</source>
        <translation>Dati di Quillory</translation>
    </message>
    <message>
        <source>Text Files</source>
        <translation>File di testo</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>low</source>
        <extracomment>Beside the name of a row of which few are left; short.</extracomment>
        <translation>poco</translation>
    </message>
    <message>
        <source>expired</source>
        <extracomment>Beside the name of a row whose expiry date is reached; short.</extracomment>
        <translation>scaduto</translation>
    </message>
</context>
</TS>
