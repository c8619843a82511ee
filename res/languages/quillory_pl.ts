<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>Calendar</name>
    <message>
        <source>Previous month</source>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Następny miesiąc</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
</context>
<context>
    <name>Colours</name>
    <message>
        <source>Automatic</source>
        <translation>Automatyczny</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>Granatowy</translation>
    </message>
    <message>
        <source>Azure</source>
        <translation>Lazurowy</translation>
    </message>
    <message>
        <source>Midnight blue</source>
        <translation>Nocny błękit</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>Bordowy</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Pale pink</source>
        <translation>Bladoróżowy</translation>
    </message>
    <message>
        <source>Slate blue</source>
        <translation>Łupkowy</translation>
    </message>
    <message>
        <source>Dark plum</source>
        <translation>Śliwkowy</translation>
    </message>
    <message>
        <source>Pale cyan</source>
        <translation>Blady cyjan</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Pomarańczowy</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Brązowy</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>Jaskrawozielony</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Morski</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Oliwkowy</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Żółty</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Bladoniebieski</translation>
    </message>
    <message>
        <source>Periwinkle</source>
        <translation>Barwinkowy</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Różowy</translation>
    </message>
    <message>
        <source>Pale orange</source>
        <translation>Bladopomarańczowy</translation>
    </message>
    <message>
        <source>Dusky blue</source>
        <translation>Szaroniebieski</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Błękitny</translation>
    </message>
    <message>
        <source>Leaf green</source>
        <translation>Zieleń liści</translation>
    </message>
    <message>
        <source>Pale green</source>
        <translation>Bladozielony</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lawendowy</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Fioletowy</translation>
    </message>
    <message>
        <source>Mauve</source>
        <translation>Malwowy</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Purpurowy</translation>
    </message>
    <message>
        <source>Amber</source>
        <translation>Bursztynowy</translation>
    </message>
    <message>
        <source>Sage</source>
        <translation>Szałwiowy</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Szary</translation>
    </message>
    <message>
        <source>Raspberry</source>
        <translation>Malinowy</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Ciemnozielony</translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>Prints a line per list, in the order of their names: name TAB number of rows.

  --json               name, rows, icon and columns of each list
</source>
        <translation>Wypisuje po wierszu na listę, w kolejności nazw: nazwa TAB liczba wierszy.

  --json               nazwa, wiersze, ikona i kolumny każdej listy
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
        <translation>Tworzy listę i nic nie wypisuje. Jej pierwsze kolumny to Name i Quantity.

  --column NAME:TYPE   dodaje kolumnę; TYPE to string, checkbox, price,
                       integer, date lub expiry (które nie potrzebuje NAME).
                       Można podać kilka razy.
  --warn-count N       ostrzega o wierszach, których ilość to N lub mniej
  --warn-expiry        ostrzega o wierszach, których termin ważności minął
  --icon N             ikona od 0 do 42
  --create             tworzy plik danych, jeśli go nie ma
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
        <translation>  --where CONDITION    tylko wiersze, które go spełniają: &quot;COLUMN CONDITION
                       VALUE&quot;, jak &quot;Name contains tea&quot;, &quot;Quantity &lt; 3&quot;,
                       &quot;Opened = Checked&quot;. Warunki są te same co w filtrach,
                       angielskimi słowami lub jako = != &gt; &gt;= &lt; &lt;=. Tak jak
                       tam, != w tekstach, liczbach i cenach znajduje to, co =.
                       Liczby czyta się tak, jak są pokazywane. Można podać
                       kilka razy: wszystkie muszą być spełnione.
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
        <translation>Wypisuje wiersz z nazwami kolumn, a potem wiersze w kolejności nazw, z TAB
między polami. Znaki sterujące w tekstach stają się odstępami.

  --sort COLUMN        rosnąco według kolumny
  --descending         w odwrotnej kolejności
  --no-header          bez wiersza z nazwami kolumn
  --json               obiekt na wiersz; daty jako YYYY-MM-DD, brakujące
                       wartości jako null
</translation>
    </message>
    <message>
        <source>Looks for a text in every column of every list, whatever its case and accents, and prints a
line per value that has it: list TAB row TAB column TAB value.

  --json               list, row, column and text of each
</source>
        <translation>Szuka tekstu we wszystkich kolumnach wszystkich list, bez względu na wielkość
liter i znaki diakrytyczne, i wypisuje wiersz na każdą wartość, która go ma:
lista TAB wiersz TAB kolumna TAB wartość.

  --json               lista, wiersz, kolumna i tekst każdej z nich
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
        <translation>Zapisuje wiersze jako tekst, tak jak „Eksportuj listę”: UTF-16, TAB między
polami, CR LF po każdym wierszu. Bez FILE lub z - na standardowe wyjście.
Istniejący FILE zostaje zastąpiony.

  --dates iso          daty jako YYYY-MM-DD, wszędzie czytane tak samo
  --format NAME        csv lub tsv, tabela dla innych programów w UTF-8 z
                       nazwami kolumn w pierwszym wierszu: daty jako
                       YYYY-MM-DD, kropka dziesiętna, true i false; json, jak
                       wypisuje show; lub html, strona do czytania
  --all DIR            wszystkie listy do katalogu, tworzonego w razie
                       potrzeby: po pliku na listę, csv, jeśli nie podano
                       inaczej, i lists.json, który je opisuje
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
        <translation>Dodaje wiersz dla każdego wiersza pliku tekstowego, tak jak „Importuj listę”, i
wypisuje, ile ich jest. FILE - to standardowe wejście. Każdy wiersz musi się
kończyć znakami CR LF, ostatni też.

  --columns &quot;A,B&quot;      kolumny, które wypełniają pola wiersza; niewymienione
                       następują w kolejności listy, która obowiązuje też bez
                       tej opcji
  --encoding NAME      kodowanie pliku: utf-8, utf-16 lub numer strony kodowej,
                       jak 1252
  --format NAME        csv lub tsv, tabele takie, jak zapisuje export: pierwszy
                       wiersz nazywa kolumny; w csv pola dzieli przecinek,
                       średnik lub TAB. Wchodzą wszystkie wiersze albo żaden
  --match COLUMN       w tabeli: zmienia wiersz, który ma w tej kolumnie tę
                       samą wartość, a gdzie go nie ma, dodaje nowy
  --all DIR            tworzy każdą listę opisaną przez lists.json w katalogu i
                       je wypisuje
  --create             z --all: tworzy plik danych, jeśli go nie ma
  --dry-run            nic nie zapisuje, wypisuje, ile wierszy by weszło
</translation>
    </message>
    <message>
        <source>Prints a line per total of a number or price column: name TAB total, with a point before
decimals.

  --json               name and total of each
</source>
        <translation>Wypisuje po wierszu na sumę kolumny liczb lub cen: nazwa TAB suma, z kropką
dziesiętną.

  --json               nazwa i suma każdej z nich
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
        <translation>Wypisuje wiersze list z włączonymi ostrzeżeniami: lista TAB wiersz TAB „low”,
„expired” lub data, w której kończy się ważność.

  --within DAYS        także wiersze, których ważność skończy się za tyle dni
  --json               lista, wiersz, stan i ilość lub data każdego z nich
  --ics                wypisuje zamiast tego kalendarz wszystkich terminów jako
                       iCalendar; z --within tylko do tego dnia
  --notify             nic nie wypisuje, lecz najwyżej raz dziennie pokazuje w
                       powiadomieniu pulpitu, co stało się pilne od ostatniego
                       razu. Dotknięcie otwiera listę; do tej chwili lub do
                       zamknięcia polecenie czeka.

Kończy się kodem 3, jeśli coś jest pilne, inaczej kodem 0.
</translation>
    </message>
    <message>
        <source>Turns a notification each morning of what is due on or off, or prints whether it is on.
Needs systemd, whose timer quillory-reminders then runs &quot;quillory due --notify&quot;.
</source>
        <translation>Włącza lub wyłącza poranne powiadomienie o tym, co pilne, albo wypisuje, czy
jest włączone. Wymaga systemd, którego zegar quillory-reminders uruchamia wtedy
„quillory due --notify”.
</translation>
    </message>
    <message>
        <source>Adds a row with these values and prints 1. Numbers are read as they are shown, a checkbox is
Checked or Unchecked.

  --dry-run            stores nothing
</source>
        <translation>Dodaje wiersz z tymi wartościami i wypisuje 1. Liczby czyta się tak, jak są
pokazywane, pole wyboru to Checked lub Unchecked.

  --dry-run            nic nie zapisuje
</translation>
    </message>
    <message>
        <source>Gives all rows that meet the conditions these values, or none of them if one cannot be
stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Nadaje te wartości wszystkim wierszom, które spełniają warunki, albo żadnemu,
jeśli któregoś nie da się zapisać, i wypisuje, ile ich jest.

  --dry-run            nic nie zapisuje
</translation>
    </message>
    <message>
        <source>Counts all rows that meet the conditions up by +N or down by -N, or none of them if one
cannot be stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Zwiększa o +N lub zmniejsza o -N ilość we wszystkich wierszach, które spełniają
warunki, albo w żadnym, jeśli któregoś nie da się zapisać, i wypisuje, ile ich
jest.

  --dry-run            nic nie zapisuje
</translation>
    </message>
    <message>
        <source>Deletes all rows that meet the conditions, or none of them if one cannot be, and prints how
many there are.

  --dry-run            deletes nothing
</source>
        <translation>Usuwa wszystkie wiersze, które spełniają warunki, albo nie usuwa żadnego, jeśli
któregoś nie da się usunąć, i wypisuje, ile ich jest.

  --dry-run            nic nie usuwa
</translation>
    </message>
    <message>
        <source>Gives a list another name and prints nothing.

  --dry-run            stores nothing
</source>
        <translation>Nadaje liście inną nazwę i nic nie wypisuje.

  --dry-run            nic nie zapisuje
</translation>
    </message>
    <message>
        <source>Deletes a list with all its rows and prints how many these are.

  --dry-run            deletes nothing
</source>
        <translation>Usuwa listę ze wszystkimi wierszami i wypisuje, ile ich było.

  --dry-run            nic nie usuwa
</translation>
    </message>
    <message>
        <source>Reads the whole data file. Prints &quot;ok&quot;, or what is wrong and exits with 1.
</source>
        <translation>Czyta cały plik danych. Wypisuje „ok” albo co jest nie tak i kończy się wtedy
kodem 1.
</translation>
    </message>
    <message>
        <source>Writes a consistent copy of the data file, also while it is in use. FILE must not exist.
</source>
        <translation>Zapisuje spójną kopię pliku danych, także gdy jest on w użyciu. FILE nie może
istnieć.
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
        <translation>Po każdym uruchomieniu, które zmieniło listy lub wiersze ustawionego pliku
danych, zachowywana jest jego kopia: trzy ostatnie lub tyle, ile mówi
KeptCopies=0...9 w ustawieniach, oraz starsze, dopóki wszystkie razem mają
najwyżej 32 MB. Są usuwane 90 dni po zniknięciu pliku.

Bez opcji wypisuje po wierszu na kopię, od najnowszej: numer TAB czas TAB
bajty, a potem po wierszu na listę, którą da się odczytać z samego pliku
danych, nawet uszkodzonego: salvage TAB lista TAB wiersze TAB co przepadło. W
przeciwnym razie tworzy nowy plik danych FILE, który nie może istnieć:

  --from N             z kopii N
  --salvage            z tego, co da się jeszcze odczytać z pliku danych, i
                       wypisuje, co to jest; plik danych jest tylko czytany
  --json               obiekt na kopię i na listę
</translation>
    </message>
    <message>
        <source>none so far</source>
        <translation>na razie brak</translation>
    </message>
    <message>
        <source>  --data FILE          works on another data file than the configured one (%1)

Here dates are written %2 and numbers %3, but in text files with a point and no
groups. Text files are written in UTF-16 behind a byte-order mark, and read in code page
%4 where there is none.
</source>
        <extracomment>%1 is the data file, %2 such as dd/MM/yyyy, %3 such as 1,234.50, %4 such as 1252.</extracomment>
        <translation>  --data FILE          pracuje na innym pliku danych niż ustawiony (%1)

Tutaj daty pisze się %2, a liczby %3, lecz w plikach tekstowych z kropką i bez
grup. Pliki tekstowe zapisuje się w UTF-16 po znaczniku kolejności bajtów, a
czyta w stronie kodowej %4, gdy go nie ma.
</translation>
    </message>
    <message>
        <source>
Opens the window, showing LIST if it is named. The commands work without it:

</source>
        <translation>
Otwiera okno z listą LIST, jeśli ją podano. Polecenia działają bez niego:

</translation>
    </message>
    <message>
        <source>
  --new-list           opens the window with the page of a new list
  --help               help, on a command if one is named
  --version            the version
</source>
        <translation>
  --new-list           otwiera okno na stronie nowej listy
  --help               pomoc, o poleceniu, jeśli je podano
  --version            wersja
</translation>
    </message>
    <message>
        <source>
Exit status: 0 done, 1 failed, 2 wrong usage, 3 something is due.
</source>
        <translation>
Kod wyjścia: 0 zrobione, 1 błąd, 2 złe użycie, 3 coś jest pilne.
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
        <translation>Zapisuje listę do druku lub wysłania: jej wiersze z zaznaczonym tym, czego mało
i co po terminie, sumy oraz wykresy tego, co traci ważność w ciągu dwunastu
miesięcy i czego jest najmniej. Bez FILE lub z - na standardowe wyjście.
Istniejący FILE zostaje zastąpiony.

  --all                wszystkie listy w jednym raporcie
  --format NAME        pdf albo html: strona, która nie potrzebuje innego
                       pliku; bez tego według końca nazwy FILE lub pdf
</translation>
    </message>
    <message>
        <source>Prints what merging OTHER, another device&apos;s copy of the data file, would do, as merge prints it.
Changes nothing. Exits with 3 if OTHER has something that the data file has not.

  --base FILE          what both come from, where no kept copy is
  --json               an object per line
</source>
        <translation>Pokazuje, co zrobiłoby połączenie z OTHER, kopią pliku danych z innego urządzenia, tak jak pokazuje
to merge. Niczego nie zmienia. Kończy się kodem 3, jeśli OTHER ma coś, czego nie ma plik danych.

  --base FILE          z czego powstały oba, jeśli nie ma zachowanej kopii
  --json               jeden obiekt w wierszu
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
        <translation>Łączy plik danych i OTHER, jego kopię z innego urządzenia, w pliku danych. OTHER jest tylko
czytany. Pokazuje wiersz dla wszystkiego, co przybyło lub ubyło, i dla każdej wartości, którą
zmieniono w obu: co TAB lista TAB wiersz TAB kolumna TAB wartość TAB druga wartość. Przedtem
zachowuje kopie obu plików.

  --base FILE          z czego powstały oba, jeśli nie ma zachowanej kopii
  --dry-run            niczego nie zapisuje
  --json               jeden obiekt w wierszu
</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>Enable row colour when count is less than or equal to</source>
        <translation>Koloruj wiersz, gdy ilość jest nie większa niż</translation>
    </message>
    <message>
        <source>Enable row colour when expiry date is reached to colour</source>
        <translation>Koloruj wiersz, gdy minie termin ważności, na</translation>
    </message>
    <message>
        <source>Display list using landscape mode</source>
        <translation>Pokazuj listy poziomo</translation>
    </message>
    <message>
        <source>Landscape (right-handed)</source>
        <translation>Poziomo (prawa ręka)</translation>
    </message>
    <message>
        <source>Landscape (left-handed)</source>
        <translation>Poziomo (lewa ręka)</translation>
    </message>
    <message>
        <source>Use alternate row colour</source>
        <translation>Przyciemniaj co drugi wiersz</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>W dół</translation>
    </message>
</context>
<context>
    <name>DataFileOpener</name>
    <message>
        <source>The data file is damaged. There is a good copy of %1.

Do you want to go on with it? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Plik danych jest uszkodzony. Jest dobra kopia z %1.

Pracować dalej na niej? Zostanie zapisana w nowym pliku; uszkodzony pozostanie bez zmian.</translation>
    </message>
    <message>
        <source>The new file could not be written. Error: %1</source>
        <translation>Nie udało się zapisać nowego pliku. Błąd: %1</translation>
    </message>
    <message>
        <source>Beside the data file lay the journal of another file. It is kept as %1.</source>
        <translation>Obok pliku danych leżał dziennik innego pliku. Zachowano go jako %1.</translation>
    </message>
    <message>
        <source>Another program has written into the data file. What it holds now: %1, %2.

Do you want to go on with that? It is written to a new file; the old one stays as it is.</source>
        <translation>Inny program zapisał coś w pliku danych. Zawiera on teraz: %1, %2.

Pracować dalej na tym? Trafi to do nowego pliku; stary pozostanie bez zmian.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file: %1, %2.

Do you want to go on with that? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Co można jeszcze odczytać z uszkodzonego pliku: %1, %2.

Pracować dalej na tym? Trafi to do nowego pliku; uszkodzony pozostanie bez zmian.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n wiersz</numerusform>
            <numerusform>%n wiersze</numerusform>
            <numerusform>%n wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s)</source>
        <translation>
            <numerusform>%n lista</numerusform>
            <numerusform>%n listy</numerusform>
            <numerusform>%n list</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Deletions</name>
    <message>
        <source>The list &apos;%1&apos; was deleted.</source>
        <translation>Usunięto listę „%1”.</translation>
    </message>
    <message>
        <source>All rows of &apos;%1&apos; were deleted.</source>
        <translation>Usunięto wszystkie wiersze listy „%1”.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was deleted.</source>
        <translation>Usunięto „%1”.</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Welcome to Quillory</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Kolumny</translation>
    </message>
    <message>
        <source>Column Definition</source>
        <translation>Kolumna</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtry</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Import Column Order</source>
        <translation>Kolejność importu</translation>
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
        <translation>Pudełko</translation>
    </message>
    <message>
        <source>Jar</source>
        <translation>Słoik</translation>
    </message>
    <message>
        <source>Refrigerator</source>
        <translation>Lodówka</translation>
    </message>
    <message>
        <source>Freezer</source>
        <translation>Zamrażarka</translation>
    </message>
    <message>
        <source>Apple</source>
        <translation>Jabłko</translation>
    </message>
    <message>
        <source>Carrot</source>
        <translation>Marchew</translation>
    </message>
    <message>
        <source>Bread</source>
        <translation>Chleb</translation>
    </message>
    <message>
        <source>Meat</source>
        <translation>Mięso</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>Ryba</translation>
    </message>
    <message>
        <source>Milk</source>
        <translation>Mleko</translation>
    </message>
    <message>
        <source>Bottle</source>
        <translation>Butelka</translation>
    </message>
    <message>
        <source>Wine</source>
        <translation>Wino</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>Kawa</translation>
    </message>
    <message>
        <source>Baby bottle</source>
        <translation>Butelka dla dziecka</translation>
    </message>
    <message>
        <source>Pills</source>
        <translation>Tabletki</translation>
    </message>
    <message>
        <source>First aid</source>
        <translation>Apteczka</translation>
    </message>
    <message>
        <source>Cosmetics</source>
        <translation>Kosmetyki</translation>
    </message>
    <message>
        <source>Cleaning spray</source>
        <translation>Spray</translation>
    </message>
    <message>
        <source>Shirt</source>
        <translation>Koszula</translation>
    </message>
    <message>
        <source>Shoe</source>
        <translation>But</translation>
    </message>
    <message>
        <source>Jewel</source>
        <translation>Klejnot</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Zegarek</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Monety</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Znaczek</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Książka</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Płyta</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Game pad</source>
        <translation>Pad do gier</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Puzzle</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Aparat</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Plug</source>
        <translation>Wtyczka</translation>
    </message>
    <message>
        <source>Bulb</source>
        <translation>Żarówka</translation>
    </message>
    <message>
        <source>Hammer</source>
        <translation>Młotek</translation>
    </message>
    <message>
        <source>Screw</source>
        <translation>Śruba</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Farba</translation>
    </message>
    <message>
        <source>Plant</source>
        <translation>Roślina</translation>
    </message>
    <message>
        <source>Paw</source>
        <translation>Łapa</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>Samochód</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Klucz</translation>
    </message>
</context>
<context>
    <name>ListDefinitions</name>
    <message>
        <source>Another device has deleted this list.</source>
        <translation>Inne urządzenie usunęło tę listę.</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>it is the data file itself</source>
        <translation>to jest sam plik danych</translation>
    </message>
    <message>
        <source>it is the name of the data file&apos;s journal</source>
        <translation>to jest nazwa dziennika pliku danych</translation>
    </message>
</context>
<context>
    <name>ListTransfer</name>
    <message numerus="yes">
        <source>The import was cancelled. %n row(s) are in the list already.</source>
        <translation>
            <numerusform>Import przerwano. %n wiersz jest już na liście.</numerusform>
            <numerusform>Import przerwano. %n wiersze są już na liście.</numerusform>
            <numerusform>Import przerwano. %n wierszy jest już na liście.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates such as %1 were read in the form %2.</source>
        <extracomment>%1 is such as 10/05/2026, %2 such as dd/MM/yyyy.</extracomment>
        <translation>Daty takie jak %1 odczytano w postaci %2.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>To nie jest zwykły plik.</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>Nie udało się zapisać pliku: %1</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are in the file. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Tę listę można odczytać tylko częściowo: w pliku jest %n wiersz. „quillory restore” pokazuje kopie i to, co da się uratować.</numerusform>
            <numerusform>Tę listę można odczytać tylko częściowo: w pliku są %n wiersze. „quillory restore” pokazuje kopie i to, co da się uratować.</numerusform>
            <numerusform>Tę listę można odczytać tylko częściowo: w pliku jest %n wierszy. „quillory restore” pokazuje kopie i to, co da się uratować.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>List Properties...</source>
        <translation>Właściwości...</translation>
    </message>
    <message>
        <source>Rename List</source>
        <translation>Zmień nazwę listy</translation>
    </message>
    <message>
        <source>Import List...</source>
        <translation>Importuj listę...</translation>
    </message>
    <message>
        <source>Export List...</source>
        <translation>Eksportuj listę...</translation>
    </message>
    <message>
        <source>Delete List...</source>
        <translation>Usuń listę...</translation>
    </message>
    <message>
        <source>Delete All Records...</source>
        <translation>Usuń wszystkie wiersze...</translation>
    </message>
    <message>
        <source>Open Read Only</source>
        <translation>Otwieraj do odczytu</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Opcje...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>O programie...</translation>
    </message>
    <message>
        <source>Add Expiry Date Column</source>
        <translation>Dodaj termin ważności</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>W dół</translation>
    </message>
    <message>
        <source>Modify...</source>
        <translation>Zmień...</translation>
    </message>
    <message>
        <source>Create Copy</source>
        <translation>Utwórz kopię</translation>
    </message>
    <message>
        <source>View Summary...</source>
        <translation>Pokaż sumy...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Znajdź...</translation>
    </message>
    <message>
        <source>Set Filters...</source>
        <translation>Ustaw filtry...</translation>
    </message>
    <message>
        <source>Clear Filters</source>
        <translation>Wyczyść filtry</translation>
    </message>
    <message>
        <source>Add 1</source>
        <translation>Dodaj 1</translation>
    </message>
    <message>
        <source>Subtract 1</source>
        <translation>Odejmij 1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Usuń wszystkie</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowy</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Wstaw</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>Quillory::ColourGrid</name>
    <message>
        <source>Colours</source>
        <translation>Kolory</translation>
    </message>
</context>
<context>
    <name>Quillory::ColumnsPanel</name>
    <message>
        <source>A new column goes before the selected one. Once the list is made its columns stay.</source>
        <translation>Nowa kolumna staje przed zaznaczoną. Gdy lista powstanie, jej kolumny się nie zmienią.</translation>
    </message>
</context>
<context>
    <name>Quillory::DataFileSession</name>
    <message>
        <source>The change could not be saved. Error: %1

Tap Retry to open the data file again.</source>
        <translation>Nie udało się zapisać zmiany. Błąd: %1

„Ponów” otwiera plik danych jeszcze raz.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. The old one is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>W miejsce pliku danych wstawiono inny plik. Stary zachowano jako kopię; „quillory restore” pokazuje kopie.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. No copy could be kept of the old one.</source>
        <translation>W miejsce pliku danych wstawiono inny plik. Nie udało się zachować kopii starego.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. What it held is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>Pliku danych nie ma już na miejscu. Jego zawartość zachowano jako kopię; „quillory restore” pokazuje kopie.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. No copy could be kept of it.</source>
        <translation>Pliku danych nie ma już na miejscu. Nie udało się zachować jego kopii.</translation>
    </message>
    <message>
        <source>No copy of the data file could be kept. Error: %1</source>
        <translation>Nie udało się zachować kopii pliku danych. Błąd: %1</translation>
    </message>
</context>
<context>
    <name>Quillory::DateField</name>
    <message>
        <source>Calendar</source>
        <translation>Kalendarz</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>brak daty</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>Typed in place of a date, in small letters.</extracomment>
        <translation>dziś</translation>
    </message>
    <message>
        <source>not a date</source>
        <translation>to nie data</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date. Type it as in %2, or pick it from the calendar.</source>
        <translation>„%1” nie jest datą. Wpisz ją jak %2 albo wybierz z kalendarza.</translation>
    </message>
</context>
<context>
    <name>Quillory::DeviceMerge</name>
    <message>
        <source>Another device has changed the lists, and so have you. Do you want to bring both together?</source>
        <translation>Inne urządzenie zmieniło listy i tutaj też je zmieniono. Połączyć obie wersje?</translation>
    </message>
    <message>
        <source>Beside the data file lies another device&apos;s version, &quot;%1&quot;. Do you want to bring both together?</source>
        <translation>Obok pliku danych leży wersja z innego urządzenia, „%1”. Połączyć obie?</translation>
    </message>
    <message>
        <source>The two versions could not be brought together; both are as they were. Error: %1</source>
        <translation>Nie udało się połączyć obu wersji; obie są takie, jak były. Błąd: %1</translation>
    </message>
</context>
<context>
    <name>Quillory::FilterBar</name>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 z %2 wierszy</translation>
    </message>
</context>
<context>
    <name>Quillory::FiltersPage</name>
    <message>
        <source>No filters yet. Tap Add to make one.</source>
        <translation>Nie ma jeszcze filtrów. „Dodaj” tworzy nowy.</translation>
    </message>
</context>
<context>
    <name>Quillory::GeneralPanel</name>
    <message>
        <source>Icon</source>
        <translation>Ikona</translation>
    </message>
</context>
<context>
    <name>Quillory::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
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
        <translation>Nie ma jeszcze list. „Nowy” tworzy pierwszą.</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGrid</name>
    <message>
        <source>Icons</source>
        <translation>Ikony</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGridPage</name>
    <message>
        <source>Icon</source>
        <translation>Ikona</translation>
    </message>
</context>
<context>
    <name>Quillory::IconPicker</name>
    <message>
        <source>Next icon</source>
        <translation>Następna ikona</translation>
    </message>
    <message>
        <source>Previous icon</source>
        <translation>Poprzednia ikona</translation>
    </message>
    <message>
        <source>All icons</source>
        <translation>Wszystkie ikony</translation>
    </message>
</context>
<context>
    <name>Quillory::MainFrame</name>
    <message>
        <source>Choose a list to see its rows.</source>
        <translation>Wybierz listę, aby zobaczyć jej wiersze.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Some lists cannot be read. Error: %1</source>
        <translation>Niektórych list nie można odczytać. Błąd: %1</translation>
    </message>
    <message>
        <source>Updated from another device</source>
        <translation>Zaktualizowano z innego urządzenia</translation>
    </message>
</context>
<context>
    <name>Quillory::MenuKey</name>
    <message>
        <source>opens a menu</source>
        <translation>otwiera menu</translation>
    </message>
</context>
<context>
    <name>Quillory::MergePage</name>
    <message>
        <source>name of the list</source>
        <translation>nazwa listy</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>ikona</translation>
    </message>
    <message>
        <source>warning of counts</source>
        <translation>ostrzeganie o ilości</translation>
    </message>
    <message>
        <source>warning of expiry</source>
        <translation>ostrzeganie o terminie</translation>
    </message>
    <message>
        <source>count to warn at</source>
        <translation>ilość, od której ostrzegać</translation>
    </message>
    <message>
        <source>colour of counts</source>
        <translation>kolor ilości</translation>
    </message>
    <message>
        <source>colour of expiry</source>
        <translation>kolor terminu</translation>
    </message>
    <message>
        <source>The list came from the other device.</source>
        <translation>Lista pochodzi z innego urządzenia.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device.</source>
        <translation>Listę usunięto na innym urządzeniu.</translation>
    </message>
    <message>
        <source>The list was deleted here and changed on the other device: it is back.</source>
        <translation>Listę usunięto tutaj i zmieniono na innym urządzeniu: wróciła.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device and changed here: it stays.</source>
        <translation>Listę usunięto na innym urządzeniu i zmieniono tutaj: zostaje.</translation>
    </message>
    <message>
        <source>Both devices had made this list: it is one now.</source>
        <translation>Oba urządzenia utworzyły tę listę: teraz jest jedna.</translation>
    </message>
    <message>
        <source>%1: came from the other device.</source>
        <translation>%1: pochodzi z innego urządzenia.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device.</source>
        <translation>%1: usunięto na innym urządzeniu.</translation>
    </message>
    <message>
        <source>%1: was deleted here and changed on the other device, and is back.</source>
        <translation>%1: usunięto tutaj i zmieniono na innym urządzeniu; wiersz wrócił.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device and changed here, and stays.</source>
        <translation>%1: usunięto na innym urządzeniu i zmieniono tutaj; wiersz zostaje.</translation>
    </message>
    <message>
        <source>%1: a copy of the row has the other values.</source>
        <translation>%1: kopia wiersza ma pozostałe wartości.</translation>
    </message>
    <message>
        <source>%1: %2 came in the place of %3.</source>
        <extracomment>Such as &quot;Tea, Quantity: 5 came in the place of 3.&quot;</extracomment>
        <translation>%1: %2 zamiast %3.</translation>
    </message>
    <message>
        <source>%1: both devices had changed it. It is %2; the other was %3.</source>
        <translation>%1: zmieniono na obu urządzeniach. Jest %2; drugą wartością było %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted. It is %2; the other was %3.</source>
        <translation>%1: liczono na obu urządzeniach. Jest %2; drugą wartością było %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted beyond the limit. It is %2; the other was %3.</source>
        <translation>%1: na obu urządzeniach przekroczono granicę. Jest %2; drugą wartością było %3.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A row&apos;s name and that of a column.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>In the place of a value that is not there.</extracomment>
        <translation>nic</translation>
    </message>
    <message>
        <source>Brought together</source>
        <translation>Połączono</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>I jeszcze %n.</numerusform>
            <numerusform>I jeszcze %n.</numerusform>
            <numerusform>I jeszcze %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>What both come from was not known any more. So nothing was deleted, and counts that both had changed were not added up.</source>
        <translation>Nie było już wiadomo, z czego powstały obie wersje. Dlatego niczego nie usunięto, a ilości zmienionych w obu nie zsumowano.</translation>
    </message>
</context>
<context>
    <name>Quillory::OptionsPanel</name>
    <message>
        <source>Only lists with an expiry date column can warn of dates.</source>
        <translation>Ostrzegać mogą tylko listy z terminem ważności.</translation>
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
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Do you want to discard what you have entered?</source>
        <translation>Odrzucić to, co wpisano?</translation>
    </message>
</context>
<context>
    <name>Quillory::RowsView</name>
    <message>
        <source>read-only</source>
        <translation>tylko odczyt</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are shown. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Tę listę można odczytać tylko częściowo: widać %n wiersz. „quillory restore” pokazuje kopie i to, co da się uratować.</numerusform>
            <numerusform>Tę listę można odczytać tylko częściowo: widać %n wiersze. „quillory restore” pokazuje kopie i to, co da się uratować.</numerusform>
            <numerusform>Tę listę można odczytać tylko częściowo: widać %n wierszy. „quillory restore” pokazuje kopie i to, co da się uratować.</numerusform>
        </translation>
    </message>
    <message>
        <source>No row meets the filters.</source>
        <translation>Żaden wiersz nie spełnia filtrów.</translation>
    </message>
    <message>
        <source>This list has no rows.</source>
        <translation>Ta lista nie ma wierszy.</translation>
    </message>
    <message>
        <source>No rows yet. Tap New to add one.</source>
        <translation>Nie ma jeszcze wierszy. „Nowy” dodaje pierwszy.</translation>
    </message>
    <message>
        <source>This list can be read only in part, so nothing is summed up. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>Tę listę można odczytać tylko częściowo, więc nic nie zsumowano. „quillory restore” pokazuje kopie i to, co da się uratować.</translation>
    </message>
</context>
<context>
    <name>Quillory::SummaryPage</name>
    <message>
        <source>Totals</source>
        <translation>Sumy</translation>
    </message>
</context>
<context>
    <name>Quillory::ThresholdEdit</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>The least and the greatest number that can be typed.</extracomment>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Mniej</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Więcej</translation>
    </message>
</context>
<context>
    <name>Quillory::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>past</source>
        <extracomment>The first bar of a drawing of months: what is expired already.</extracomment>
        <translation>minęło</translation>
    </message>
    <message>
        <source>What expires in the next twelve months</source>
        <translation>Co traci ważność w ciągu dwunastu miesięcy</translation>
    </message>
    <message>
        <source>Of what fewest are left, beside the threshold</source>
        <translation>Czego jest najmniej, obok progu</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Sumy</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n wiersz</numerusform>
            <numerusform>%n wiersze</numerusform>
            <numerusform>%n wierszy</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Strings</name>
    <message>
        <source>Inventory List</source>
        <translation>Listy</translation>
    </message>
    <message>
        <source>Do you want to delete the selected row?</source>
        <translation>Usunąć zaznaczony wiersz?</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>New Inventory List</source>
        <translation>Nowa lista</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Ilość</translation>
    </message>
    <message>
        <source>Please specifiy a name. Empty name is not allowed.</source>
        <translation>Podaj nazwę.</translation>
    </message>
    <message>
        <source>Do you want to delete all rows in list &apos;%s&apos;?</source>
        <translation>Usunąć wszystkie wiersze listy „%s”?</translation>
    </message>
    <message>
        <source>Do you want to delete list &apos;%s&apos; and all its data?</source>
        <translation>Usunąć listę „%s” z całą zawartością?</translation>
    </message>
    <message>
        <source>Inventory List Options</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Quillory is unable to open the data file. Please make sure the storage card is inserted.</source>
        <translation>Nie można otworzyć pliku danych. Sprawdź, czy karta pamięci jest włożona.</translation>
    </message>
    <message>
        <source>The data file cannot be found. Do you want to create a new data file at the same location? Tap No to try to locate it again.</source>
        <translation>Nie można znaleźć pliku danych. Utworzyć nowy w tym samym miejscu? „Nie” szuka go jeszcze raz.</translation>
    </message>
    <message>
        <source>No record matched the criteria.</source>
        <translation>Żaden wiersz nie spełnia warunku.</translation>
    </message>
    <message>
        <source>Import is completed with errors. Data may not be imported properly.</source>
        <translation>Import zakończył się z błędami. Może brakować danych.</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Checkbox</source>
        <translation>Pole wyboru</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Cena</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Liczba całkowita</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Ilość</translation>
    </message>
    <message>
        <source>Expiry Date</source>
        <translation>Termin ważności</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>contains</source>
        <extracomment>The conditions stand between a column and a value: Price &quot;greater than&quot; 3.50.</extracomment>
        <translation>zawiera</translation>
    </message>
    <message>
        <source>equals to</source>
        <translation>równe</translation>
    </message>
    <message>
        <source>not equals to</source>
        <translation>różne od</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>większe niż</translation>
    </message>
    <message>
        <source>greater than or equals to</source>
        <translation>większe lub równe</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>mniejsze niż</translation>
    </message>
    <message>
        <source>less than or equals to</source>
        <translation>mniejsze lub równe</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>These stand before a date: Opened &quot;on or after&quot; 10 May.</extracomment>
        <translation>dnia</translation>
    </message>
    <message>
        <source>not on</source>
        <translation>nie dnia</translation>
    </message>
    <message>
        <source>after</source>
        <translation>po</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>od</translation>
    </message>
    <message>
        <source>before</source>
        <translation>przed</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>do</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowy</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Unable to create list table!</source>
        <translation>Nie można utworzyć tabeli list!</translation>
    </message>
    <message>
        <source>Unable to create user database!</source>
        <translation>Nie można utworzyć bazy danych!</translation>
    </message>
    <message>
        <source>Unable to create inventory table!</source>
        <translation>Nie można utworzyć tabeli listy!</translation>
    </message>
    <message>
        <source>Unable to open data file. Error: %d</source>
        <translation>Nie można otworzyć pliku danych. Błąd: %d</translation>
    </message>
    <message>
        <source>Out of memory!</source>
        <translation>Za mało pamięci!</translation>
    </message>
    <message>
        <source>To begin using Quillory, please choose a name and location to store all your inventory lists. Tap OK to continue.</source>
        <translation>Na początek wybierz nazwę i miejsce pliku, w którym będą wszystkie listy. „OK” prowadzi dalej.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Znajdź</translation>
    </message>
    <message>
        <source>to colour</source>
        <extracomment>Stands between a number and a colour: &quot;Enable row colour when count is less than or equal to&quot; 3 &quot;to colour&quot; red.</extracomment>
        <translation>na</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>Pole:</translation>
    </message>
    <message>
        <source>Condition:</source>
        <translation>Warunek:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Wartość:</translation>
    </message>
    <message>
        <source>Inventory Database</source>
        <translation>Dane programu Quillory</translation>
    </message>
    <message>
        <source>Text Files</source>
        <translation>Pliki tekstowe</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>low</source>
        <extracomment>Beside the name of a row of which few are left; short.</extracomment>
        <translation>mało</translation>
    </message>
    <message>
        <source>expired</source>
        <extracomment>Beside the name of a row whose expiry date is reached; short.</extracomment>
        <translation>po dacie</translation>
    </message>
</context>
</TS>
