<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Calendar</name>
    <message>
        <source>Previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
</context>
<context>
    <name>Colours</name>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>Azul marino</translation>
    </message>
    <message>
        <source>Azure</source>
        <translation>Azul celeste</translation>
    </message>
    <message>
        <source>Midnight blue</source>
        <translation>Azul noche</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>Granate</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Pale pink</source>
        <translation>Rosa pálido</translation>
    </message>
    <message>
        <source>Slate blue</source>
        <translation>Azul pizarra</translation>
    </message>
    <message>
        <source>Dark plum</source>
        <translation>Ciruela</translation>
    </message>
    <message>
        <source>Pale cyan</source>
        <translation>Cian pálido</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Marrón</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>Verde vivo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Verde azulado</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Oliva</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Azul pálido</translation>
    </message>
    <message>
        <source>Periwinkle</source>
        <translation>Vincapervinca</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Pale orange</source>
        <translation>Naranja pálido</translation>
    </message>
    <message>
        <source>Dusky blue</source>
        <translation>Azul grisáceo</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Azul cielo</translation>
    </message>
    <message>
        <source>Leaf green</source>
        <translation>Verde hoja</translation>
    </message>
    <message>
        <source>Pale green</source>
        <translation>Verde pálido</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavanda</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violeta</translation>
    </message>
    <message>
        <source>Mauve</source>
        <translation>Malva</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Púrpura</translation>
    </message>
    <message>
        <source>Amber</source>
        <translation>Ámbar</translation>
    </message>
    <message>
        <source>Sage</source>
        <translation>Salvia</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Raspberry</source>
        <translation>Frambuesa</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Verde oscuro</translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>Prints a line per list, in the order of their names: name TAB number of rows.

  --json               name, rows, icon and columns of each list
</source>
        <translation>Imprime una línea por lista, por orden de nombres: nombre TAB número de filas.

  --json               nombre, filas, icono y columnas de cada lista
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
        <translation>Crea una lista y no imprime nada. Sus primeras columnas son Name y Quantity.

  --column NAME:TYPE   añade una columna; TYPE es string, checkbox, price,
                       integer, date o expiry (que no necesita NAME). Se puede
                       repetir.
  --warn-count N       avisa de las filas cuya cantidad es N o menos
  --warn-expiry        avisa de las filas cuya fecha de caducidad ha llegado
  --icon N             icono de 0 a 42
  --create             crea el archivo de datos si no existe
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
        <translation>  --where CONDITION    solo las filas que la cumplen: &quot;COLUMN CONDITION VALUE&quot;,
                       como &quot;Name contains tea&quot;, &quot;Quantity &lt; 3&quot;,
                       &quot;Opened = Checked&quot;. Las condiciones son las de los filtros, con
                       sus palabras inglesas o = != &gt; &gt;= &lt; &lt;=. Como allí, != en
                       textos, números y precios encuentra lo mismo que =. Los
                       números se leen como se muestran. Se puede repetir:
                       todas deben cumplirse.
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
        <translation>Imprime una línea con los nombres de las columnas y después las filas por orden
de nombres, con TAB entre campos. Los caracteres de control de los textos se
muestran como espacios.

  --sort COLUMN        en orden ascendente de una columna
  --descending         en el orden contrario
  --no-header          sin la línea de nombres de columnas
  --json               un objeto por fila; fechas como YYYY-MM-DD, valores
                       ausentes como null
</translation>
    </message>
    <message>
        <source>Looks for a text in every column of every list, whatever its case and accents, and prints a
line per value that has it: list TAB row TAB column TAB value.

  --json               list, row, column and text of each
</source>
        <translation>Busca un texto en todas las columnas de todas las listas, sin distinguir
mayúsculas ni acentos, e imprime una línea por cada valor que lo contiene:
lista TAB fila TAB columna TAB valor.

  --json               lista, fila, columna y texto de cada uno
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
        <translation>Escribe las filas como texto, igual que «Exportar lista»: UTF-16, TAB entre
campos, CR LF tras cada fila. Sin FILE, o con -, en la salida estándar. Un FILE
existente se reemplaza.

  --dates iso          fechas como YYYY-MM-DD, que se leen igual en todas
                       partes
  --format NAME        csv o tsv, una tabla para otros programas en UTF-8 con
                       los nombres de las columnas en la primera línea: fechas
                       como YYYY-MM-DD, punto decimal, true y false; json, como
                       lo imprime show; o html, una página para leer
  --all DIR            todas las listas en una carpeta, que se crea si hace
                       falta: un archivo por lista, csv si no se dice otra
                       cosa, y lists.json, que las describe
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
        <translation>Añade una fila por cada línea de un archivo de texto, igual que «Importar
lista», e imprime cuántas entraron. FILE - es la entrada estándar. Cada línea
debe terminar en CR LF, también la última.

  --columns &quot;A,B&quot;      las columnas que llenan los campos de una línea; las no
                       nombradas siguen en el orden de la lista, que es también
                       el que vale sin esta opción
  --encoding NAME      la codificación del archivo: utf-8, utf-16 o el número
                       de una página de códigos como 1252
  --format NAME        csv o tsv, tablas como las escribe export: la primera
                       línea nombra columnas; en csv separan los campos coma,
                       punto y coma o TAB. Entran todas las filas o ninguna
  --match COLUMN       de una tabla: cambia la fila que tiene el mismo valor en
                       esta columna, y añade una donde no la hay
  --all DIR            crea cada lista que describe lists.json en una carpeta,
                       y las imprime
  --create             con --all: crea el archivo de datos si no existe
  --dry-run            no guarda nada, imprime cuántas filas entrarían
</translation>
    </message>
    <message>
        <source>Prints a line per total of a number or price column: name TAB total, with a point before
decimals.

  --json               name and total of each
</source>
        <translation>Imprime una línea por total de una columna de números o precios: nombre TAB
total, con punto decimal.

  --json               nombre y total de cada una
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
        <translation>Imprime las filas de las listas con avisos activos: lista TAB fila TAB «low»,
«expired» o la fecha en que caduca la fila.

  --within DAYS        también las filas que caducan dentro de tantos días
  --json               lista, fila, estado y cantidad o fecha de cada una
  --ics                imprime en su lugar un calendario de todas las fechas de
                       caducidad, como iCalendar; con --within solo hasta
                       entonces
  --notify             no imprime nada, pero muestra como mucho una vez al día,
                       en una notificación del escritorio, lo que requiere
                       atención desde la última vez. Tocarla abre la lista;
                       hasta entonces o hasta que se cierre, la orden espera.

Termina con 3 si algo requiere atención y con 0 si no.
</translation>
    </message>
    <message>
        <source>Turns a notification each morning of what is due on or off, or prints whether it is on.
Needs systemd, whose timer quillory-reminders then runs &quot;quillory due --notify&quot;.
</source>
        <translation>Activa o desactiva la notificación de cada mañana sobre lo que requiere
atención, o imprime si está activa. Necesita systemd, cuyo temporizador
quillory-reminders ejecuta entonces «quillory due --notify».
</translation>
    </message>
    <message>
        <source>Adds a row with these values and prints 1. Numbers are read as they are shown, a checkbox is
Checked or Unchecked.

  --dry-run            stores nothing
</source>
        <translation>Añade una fila con estos valores e imprime 1. Los números se leen como se
muestran; una casilla es Checked o Unchecked.

  --dry-run            no guarda nada
</translation>
    </message>
    <message>
        <source>Gives all rows that meet the conditions these values, or none of them if one cannot be
stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Da estos valores a todas las filas que cumplen las condiciones, o a ninguna si
una no se puede guardar, e imprime cuántas son.

  --dry-run            no guarda nada
</translation>
    </message>
    <message>
        <source>Counts all rows that meet the conditions up by +N or down by -N, or none of them if one
cannot be stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Aumenta en +N o disminuye en -N la cantidad de todas las filas que cumplen las
condiciones, o de ninguna si una no se puede guardar, e imprime cuántas son.

  --dry-run            no guarda nada
</translation>
    </message>
    <message>
        <source>Deletes all rows that meet the conditions, or none of them if one cannot be, and prints how
many there are.

  --dry-run            deletes nothing
</source>
        <translation>Elimina todas las filas que cumplen las condiciones, o ninguna si una no se
puede eliminar, e imprime cuántas son.

  --dry-run            no elimina nada
</translation>
    </message>
    <message>
        <source>Gives a list another name and prints nothing.

  --dry-run            stores nothing
</source>
        <translation>Da otro nombre a una lista y no imprime nada.

  --dry-run            no guarda nada
</translation>
    </message>
    <message>
        <source>Deletes a list with all its rows and prints how many these are.

  --dry-run            deletes nothing
</source>
        <translation>Elimina una lista con todas sus filas e imprime cuántas eran.

  --dry-run            no elimina nada
</translation>
    </message>
    <message>
        <source>Reads the whole data file. Prints &quot;ok&quot;, or what is wrong and exits with 1.
</source>
        <translation>Lee todo el archivo de datos. Imprime «ok», o lo que está mal y termina con 1.
</translation>
    </message>
    <message>
        <source>Writes a consistent copy of the data file, also while it is in use. FILE must not exist.
</source>
        <translation>Escribe una copia coherente del archivo de datos, también mientras se usa. FILE
no debe existir.
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
        <translation>Después de cada ejecución que cambió listas o filas del archivo de datos
configurado se guarda una copia: las tres últimas, o tantas como diga
KeptCopies=0...9 en los ajustes, y otras más antiguas mientras todas juntas no
pasen de 32 MB. Se eliminan 90 días después de que el archivo desaparezca.

Sin opciones imprime una línea por copia, la más reciente primero: número TAB
hora TAB bytes, y después una línea por lista que se puede leer del propio
archivo de datos, aunque esté dañado: salvage TAB lista TAB filas TAB lo que se
ha perdido. Si no, crea el nuevo archivo de datos FILE, que no debe existir:

  --from N             de la copia N
  --salvage            de lo que aún se puede leer del archivo de datos, e
                       imprime qué es; el archivo de datos solo se lee
  --json               un objeto por copia y por lista
</translation>
    </message>
    <message>
        <source>none so far</source>
        <translation>ninguno por ahora</translation>
    </message>
    <message>
        <source>  --data FILE          works on another data file than the configured one (%1)

Here dates are written %2 and numbers %3, but in text files with a point and no
groups. Text files are written in UTF-16 behind a byte-order mark, and read in code page
%4 where there is none.
</source>
        <extracomment>%1 is the data file, %2 such as dd/MM/yyyy, %3 such as 1,234.50, %4 such as 1252.</extracomment>
        <translation>  --data FILE          trabaja con un archivo de datos distinto del configurado
                       (%1)

Aquí las fechas se escriben %2 y los números %3, pero en los archivos de texto
con punto y sin grupos. Los archivos de texto se escriben en UTF-16 tras una
marca de orden de bytes, y se leen en la página de códigos %4 donde no la hay.
</translation>
    </message>
    <message>
        <source>
Opens the window, showing LIST if it is named. The commands work without it:

</source>
        <translation>
Abre la ventana, con LIST si se nombra. Las órdenes funcionan sin ella:

</translation>
    </message>
    <message>
        <source>
  --new-list           opens the window with the page of a new list
  --help               help, on a command if one is named
  --version            the version
</source>
        <translation>
  --new-list           abre la ventana con la página de una lista nueva
  --help               ayuda, de una orden si se nombra
  --version            la versión
</translation>
    </message>
    <message>
        <source>
Exit status: 0 done, 1 failed, 2 wrong usage, 3 something is due.
</source>
        <translation>
Código de salida: 0 hecho, 1 error, 2 mal uso, 3 algo requiere atención.
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
        <translation>Escribe una lista para imprimir o enviar: sus filas, con lo escaso y lo
caducado marcado, totales y gráficos de lo que caduca en los próximos doce
meses y de lo que queda menos. Sin FILE, o con -, en la salida estándar. Un
FILE existente se reemplaza.

  --all                todas las listas en un solo informe
  --format NAME        pdf, o html para una página que no necesita otro
                       archivo; si no, lo que diga el final del nombre de FILE,
                       o pdf
</translation>
    </message>
    <message>
        <source>Prints what merging OTHER, another device&apos;s copy of the data file, would do, as merge prints it.
Changes nothing. Exits with 3 if OTHER has something that the data file has not.

  --base FILE          what both come from, where no kept copy is
  --json               an object per line
</source>
        <translation>Muestra lo que haría reunir OTHER, la copia del archivo de datos de otro dispositivo, como lo
muestra merge. No cambia nada. Termina con 3 si OTHER tiene algo que falta en el archivo de datos.

  --base FILE          de qué proceden ambos, si no queda copia
  --json               un objeto por línea
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
        <translation>Reúne el archivo de datos y OTHER, su copia de otro dispositivo, en el archivo de datos. OTHER
solo se lee. Muestra una línea por cada cosa que vino o se fue, y por cada valor que ambos habían
cambiado: qué TAB lista TAB fila TAB columna TAB valor TAB otro valor. Antes se guardan copias de
ambos archivos.

  --base FILE          de qué proceden ambos, si no queda copia
  --dry-run            no guarda nada
  --json               un objeto por línea
</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>Enable row colour when count is less than or equal to</source>
        <translation>Colorear la fila si la cantidad es menor o igual que</translation>
    </message>
    <message>
        <source>Enable row colour when expiry date is reached to colour</source>
        <translation>Colorear la fila al llegar la fecha de caducidad, en</translation>
    </message>
    <message>
        <source>Display list using landscape mode</source>
        <translation>Mostrar las listas en horizontal</translation>
    </message>
    <message>
        <source>Landscape (right-handed)</source>
        <translation>Horizontal (diestros)</translation>
    </message>
    <message>
        <source>Landscape (left-handed)</source>
        <translation>Horizontal (zurdos)</translation>
    </message>
    <message>
        <source>Use alternate row colour</source>
        <translation>Sombrear filas alternas</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
</context>
<context>
    <name>DataFileOpener</name>
    <message>
        <source>The data file is damaged. There is a good copy of %1.

Do you want to go on with it? It is written to a new file; the damaged one stays as it is.</source>
        <translation>El archivo de datos está dañado. Hay una copia buena del %1.

¿Continuar con ella? Se escribe en un archivo nuevo; el dañado queda como está.</translation>
    </message>
    <message>
        <source>The new file could not be written. Error: %1</source>
        <translation>No se pudo escribir el archivo nuevo. Error: %1</translation>
    </message>
    <message>
        <source>Beside the data file lay the journal of another file. It is kept as %1.</source>
        <translation>Junto al archivo de datos estaba el diario de otro archivo. Se guarda como %1.</translation>
    </message>
    <message>
        <source>Another program has written into the data file. What it holds now: %1, %2.

Do you want to go on with that? It is written to a new file; the old one stays as it is.</source>
        <translation>Otro programa ha escrito en el archivo de datos. Contiene ahora: %1, %2.

¿Continuar con eso? Se escribe en un archivo nuevo; el antiguo queda como está.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file: %1, %2.

Do you want to go on with that? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Lo que aún se puede leer del archivo dañado: %1, %2.

¿Continuar con eso? Se escribe en un archivo nuevo; el dañado queda como está.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n fila</numerusform>
            <numerusform>%n filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s)</source>
        <translation>
            <numerusform>%n lista</numerusform>
            <numerusform>%n listas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Deletions</name>
    <message>
        <source>The list &apos;%1&apos; was deleted.</source>
        <translation>Se eliminó la lista «%1».</translation>
    </message>
    <message>
        <source>All rows of &apos;%1&apos; were deleted.</source>
        <translation>Se eliminaron todas las filas de «%1».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was deleted.</source>
        <translation>Se eliminó «%1».</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Welcome to Quillory</source>
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Column Definition</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Import Column Order</source>
        <translation>Orden al importar</translation>
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
        <translation>Caja</translation>
    </message>
    <message>
        <source>Jar</source>
        <translation>Tarro</translation>
    </message>
    <message>
        <source>Refrigerator</source>
        <translation>Frigorífico</translation>
    </message>
    <message>
        <source>Freezer</source>
        <translation>Congelador</translation>
    </message>
    <message>
        <source>Apple</source>
        <translation>Manzana</translation>
    </message>
    <message>
        <source>Carrot</source>
        <translation>Zanahoria</translation>
    </message>
    <message>
        <source>Bread</source>
        <translation>Pan</translation>
    </message>
    <message>
        <source>Meat</source>
        <translation>Carne</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>Pescado</translation>
    </message>
    <message>
        <source>Milk</source>
        <translation>Leche</translation>
    </message>
    <message>
        <source>Bottle</source>
        <translation>Botella</translation>
    </message>
    <message>
        <source>Wine</source>
        <translation>Vino</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>Café</translation>
    </message>
    <message>
        <source>Baby bottle</source>
        <translation>Biberón</translation>
    </message>
    <message>
        <source>Pills</source>
        <translation>Pastillas</translation>
    </message>
    <message>
        <source>First aid</source>
        <translation>Botiquín</translation>
    </message>
    <message>
        <source>Cosmetics</source>
        <translation>Cosméticos</translation>
    </message>
    <message>
        <source>Cleaning spray</source>
        <translation>Pulverizador</translation>
    </message>
    <message>
        <source>Shirt</source>
        <translation>Camisa</translation>
    </message>
    <message>
        <source>Shoe</source>
        <translation>Zapato</translation>
    </message>
    <message>
        <source>Jewel</source>
        <translation>Joya</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Monedas</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Sello</translation>
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
        <translation>Película</translation>
    </message>
    <message>
        <source>Game pad</source>
        <translation>Mando</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Puzle</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordenador</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Pila</translation>
    </message>
    <message>
        <source>Plug</source>
        <translation>Enchufe</translation>
    </message>
    <message>
        <source>Bulb</source>
        <translation>Bombilla</translation>
    </message>
    <message>
        <source>Hammer</source>
        <translation>Martillo</translation>
    </message>
    <message>
        <source>Screw</source>
        <translation>Tornillo</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Pintura</translation>
    </message>
    <message>
        <source>Plant</source>
        <translation>Planta</translation>
    </message>
    <message>
        <source>Paw</source>
        <translation>Huella</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>Coche</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Llave</translation>
    </message>
</context>
<context>
    <name>ListDefinitions</name>
    <message>
        <source>Another device has deleted this list.</source>
        <translation>Otro dispositivo ha eliminado esta lista.</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>it is the data file itself</source>
        <translation>es el propio archivo de datos</translation>
    </message>
    <message>
        <source>it is the name of the data file&apos;s journal</source>
        <translation>es el nombre del diario del archivo de datos</translation>
    </message>
</context>
<context>
    <name>ListTransfer</name>
    <message numerus="yes">
        <source>The import was cancelled. %n row(s) are in the list already.</source>
        <translation>
            <numerusform>Importación cancelada. %n fila ya está en la lista.</numerusform>
            <numerusform>Importación cancelada. %n filas ya están en la lista.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates such as %1 were read in the form %2.</source>
        <extracomment>%1 is such as 10/05/2026, %2 such as dd/MM/yyyy.</extracomment>
        <translation>Las fechas como %1 se leyeron en la forma %2.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>No se pudo escribir el archivo: %1</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are in the file. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Esta lista solo se puede leer en parte: %n fila está en el archivo. «quillory restore» muestra las copias y lo que se puede salvar.</numerusform>
            <numerusform>Esta lista solo se puede leer en parte: %n filas están en el archivo. «quillory restore» muestra las copias y lo que se puede salvar.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>List Properties...</source>
        <translation>Propiedades...</translation>
    </message>
    <message>
        <source>Rename List</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Import List...</source>
        <translation>Importar lista...</translation>
    </message>
    <message>
        <source>Export List...</source>
        <translation>Exportar lista...</translation>
    </message>
    <message>
        <source>Delete List...</source>
        <translation>Eliminar lista...</translation>
    </message>
    <message>
        <source>Delete All Records...</source>
        <translation>Vaciar lista...</translation>
    </message>
    <message>
        <source>Open Read Only</source>
        <translation>Abrir en solo lectura</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Opciones...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Acerca de...</translation>
    </message>
    <message>
        <source>Add Expiry Date Column</source>
        <translation>Añadir caducidad</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Modify...</source>
        <translation>Modificar...</translation>
    </message>
    <message>
        <source>Create Copy</source>
        <translation>Crear copia</translation>
    </message>
    <message>
        <source>View Summary...</source>
        <translation>Ver totales...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Buscar...</translation>
    </message>
    <message>
        <source>Set Filters...</source>
        <translation>Poner filtros...</translation>
    </message>
    <message>
        <source>Clear Filters</source>
        <translation>Quitar filtros</translation>
    </message>
    <message>
        <source>Add 1</source>
        <translation>Sumar 1</translation>
    </message>
    <message>
        <source>Subtract 1</source>
        <translation>Restar 1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Quitar todos</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Quillory::ColourGrid</name>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
</context>
<context>
    <name>Quillory::ColumnsPanel</name>
    <message>
        <source>A new column goes before the selected one. Once the list is made its columns stay.</source>
        <translation>Una columna nueva va antes de la seleccionada. Una vez creada la lista, sus columnas no cambian.</translation>
    </message>
</context>
<context>
    <name>Quillory::DataFileSession</name>
    <message>
        <source>The change could not be saved. Error: %1

Tap Retry to open the data file again.</source>
        <translation>No se pudo guardar el cambio. Error: %1

Toque Reintentar para volver a abrir el archivo de datos.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. The old one is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>Otro archivo ocupa el lugar del archivo de datos. El anterior se guarda como copia; «quillory restore» muestra las copias.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. No copy could be kept of the old one.</source>
        <translation>Otro archivo ocupa el lugar del archivo de datos. No se pudo guardar una copia del anterior.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. What it held is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>El archivo de datos ya no está en su lugar. Su contenido se guarda como copia; «quillory restore» muestra las copias.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. No copy could be kept of it.</source>
        <translation>El archivo de datos ya no está en su lugar. No se pudo guardar una copia.</translation>
    </message>
    <message>
        <source>No copy of the data file could be kept. Error: %1</source>
        <translation>No se pudo guardar una copia del archivo de datos. Error: %1</translation>
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
        <translation>sin fecha</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>Typed in place of a date, in small letters.</extracomment>
        <translation>hoy</translation>
    </message>
    <message>
        <source>not a date</source>
        <translation>no es una fecha</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date. Type it as in %2, or pick it from the calendar.</source>
        <translation>«%1» no es una fecha. Escríbala como %2 o elíjala en el calendario.</translation>
    </message>
</context>
<context>
    <name>Quillory::DeviceMerge</name>
    <message>
        <source>Another device has changed the lists, and so have you. Do you want to bring both together?</source>
        <translation>Otro dispositivo ha cambiado las listas, y usted también. ¿Reunir ambas versiones?</translation>
    </message>
    <message>
        <source>Beside the data file lies another device&apos;s version, &quot;%1&quot;. Do you want to bring both together?</source>
        <translation>Junto al archivo de datos hay una versión de otro dispositivo, «%1». ¿Reunir ambas?</translation>
    </message>
    <message>
        <source>The two versions could not be brought together; both are as they were. Error: %1</source>
        <translation>No se han podido reunir las dos versiones; ambas siguen como estaban. Error: %1</translation>
    </message>
</context>
<context>
    <name>Quillory::FilterBar</name>
    <message>
        <source>Clear</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 de %2 filas</translation>
    </message>
</context>
<context>
    <name>Quillory::FiltersPage</name>
    <message>
        <source>No filters yet. Tap Add to make one.</source>
        <translation>Aún no hay filtros. Toque Añadir para crear uno.</translation>
    </message>
</context>
<context>
    <name>Quillory::GeneralPanel</name>
    <message>
        <source>Icon</source>
        <translation>Icono</translation>
    </message>
</context>
<context>
    <name>Quillory::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
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
        <translation>Aún no hay listas. Toque Nuevo para crear una.</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGrid</name>
    <message>
        <source>Icons</source>
        <translation>Iconos</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGridPage</name>
    <message>
        <source>Icon</source>
        <translation>Icono</translation>
    </message>
</context>
<context>
    <name>Quillory::IconPicker</name>
    <message>
        <source>Next icon</source>
        <translation>Icono siguiente</translation>
    </message>
    <message>
        <source>Previous icon</source>
        <translation>Icono anterior</translation>
    </message>
    <message>
        <source>All icons</source>
        <translation>Todos los iconos</translation>
    </message>
</context>
<context>
    <name>Quillory::MainFrame</name>
    <message>
        <source>Choose a list to see its rows.</source>
        <translation>Elija una lista para ver sus filas.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Some lists cannot be read. Error: %1</source>
        <translation>Algunas listas no se pueden leer. Error: %1</translation>
    </message>
    <message>
        <source>Updated from another device</source>
        <translation>Actualizado desde otro dispositivo</translation>
    </message>
</context>
<context>
    <name>Quillory::MenuKey</name>
    <message>
        <source>opens a menu</source>
        <translation>abre un menú</translation>
    </message>
</context>
<context>
    <name>Quillory::MergePage</name>
    <message>
        <source>name of the list</source>
        <translation>nombre de la lista</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>icono</translation>
    </message>
    <message>
        <source>warning of counts</source>
        <translation>aviso de cantidad</translation>
    </message>
    <message>
        <source>warning of expiry</source>
        <translation>aviso de caducidad</translation>
    </message>
    <message>
        <source>count to warn at</source>
        <translation>cantidad del aviso</translation>
    </message>
    <message>
        <source>colour of counts</source>
        <translation>color de las cantidades</translation>
    </message>
    <message>
        <source>colour of expiry</source>
        <translation>color de la caducidad</translation>
    </message>
    <message>
        <source>The list came from the other device.</source>
        <translation>La lista viene del otro dispositivo.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device.</source>
        <translation>La lista se eliminó en el otro dispositivo.</translation>
    </message>
    <message>
        <source>The list was deleted here and changed on the other device: it is back.</source>
        <translation>La lista se eliminó aquí y se cambió en el otro dispositivo: ha vuelto.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device and changed here: it stays.</source>
        <translation>La lista se eliminó en el otro dispositivo y se cambió aquí: se queda.</translation>
    </message>
    <message>
        <source>Both devices had made this list: it is one now.</source>
        <translation>Ambos dispositivos habían creado esta lista: ahora es una sola.</translation>
    </message>
    <message>
        <source>%1: came from the other device.</source>
        <translation>%1: viene del otro dispositivo.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device.</source>
        <translation>%1: se eliminó en el otro dispositivo.</translation>
    </message>
    <message>
        <source>%1: was deleted here and changed on the other device, and is back.</source>
        <translation>%1: se eliminó aquí y se cambió en el otro dispositivo, y ha vuelto.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device and changed here, and stays.</source>
        <translation>%1: se eliminó en el otro dispositivo y se cambió aquí, y se queda.</translation>
    </message>
    <message>
        <source>%1: a copy of the row has the other values.</source>
        <translation>%1: una copia de la fila tiene los otros valores.</translation>
    </message>
    <message>
        <source>%1: %2 came in the place of %3.</source>
        <extracomment>Such as &quot;Tea, Quantity: 5 came in the place of 3.&quot;</extracomment>
        <translation>%1: %2 en lugar de %3.</translation>
    </message>
    <message>
        <source>%1: both devices had changed it. It is %2; the other was %3.</source>
        <translation>%1: cambiado en ambos dispositivos. Es %2; el otro era %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted. It is %2; the other was %3.</source>
        <translation>%1: contado en ambos dispositivos. Es %2; el otro era %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted beyond the limit. It is %2; the other was %3.</source>
        <translation>%1: contado más allá del límite en ambos dispositivos. Es %2; el otro era %3.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A row&apos;s name and that of a column.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>In the place of a value that is not there.</extracomment>
        <translation>nada</translation>
    </message>
    <message>
        <source>Brought together</source>
        <translation>Versiones reunidas</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Y %n más.</numerusform>
            <numerusform>Y %n más.</numerusform>
        </translation>
    </message>
    <message>
        <source>What both come from was not known any more. So nothing was deleted, and counts that both had changed were not added up.</source>
        <translation>Ya no se sabía de qué procedían ambas. Por eso no se eliminó nada, y las cantidades cambiadas en ambas no se sumaron.</translation>
    </message>
</context>
<context>
    <name>Quillory::OptionsPanel</name>
    <message>
        <source>Only lists with an expiry date column can warn of dates.</source>
        <translation>Solo las listas con fecha de caducidad pueden avisar de ella.</translation>
    </message>
</context>
<context>
    <name>Quillory::Page</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Do you want to discard what you have entered?</source>
        <translation>¿Descartar lo que ha escrito?</translation>
    </message>
</context>
<context>
    <name>Quillory::RowsView</name>
    <message>
        <source>read-only</source>
        <translation>solo lectura</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are shown. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Esta lista solo se puede leer en parte: se muestra %n fila. «quillory restore» muestra las copias y lo que se puede salvar.</numerusform>
            <numerusform>Esta lista solo se puede leer en parte: se muestran %n filas. «quillory restore» muestra las copias y lo que se puede salvar.</numerusform>
        </translation>
    </message>
    <message>
        <source>No row meets the filters.</source>
        <translation>Ninguna fila cumple los filtros.</translation>
    </message>
    <message>
        <source>This list has no rows.</source>
        <translation>Esta lista no tiene filas.</translation>
    </message>
    <message>
        <source>No rows yet. Tap New to add one.</source>
        <translation>Aún no hay filas. Toque Nuevo para añadir una.</translation>
    </message>
    <message>
        <source>This list can be read only in part, so nothing is summed up. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>Esta lista solo se puede leer en parte, así que no se suma nada. «quillory restore» muestra las copias y lo que se puede salvar.</translation>
    </message>
</context>
<context>
    <name>Quillory::SummaryPage</name>
    <message>
        <source>Totals</source>
        <translation>Totales</translation>
    </message>
</context>
<context>
    <name>Quillory::ThresholdEdit</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>The least and the greatest number that can be typed.</extracomment>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
</context>
<context>
    <name>Quillory::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>past</source>
        <extracomment>The first bar of a drawing of months: what is expired already.</extracomment>
        <translation>pasado</translation>
    </message>
    <message>
        <source>What expires in the next twelve months</source>
        <translation>Lo que caduca en los próximos doce meses</translation>
    </message>
    <message>
        <source>Of what fewest are left, beside the threshold</source>
        <translation>De lo que queda menos, junto al límite</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totales</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n fila</numerusform>
            <numerusform>%n filas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Strings</name>
    <message>
        <source>Inventory List</source>
        <translation>Listas</translation>
    </message>
    <message>
        <source>Do you want to delete the selected row?</source>
        <translation>¿Eliminar la fila seleccionada?</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>New Inventory List</source>
        <translation>Lista nueva</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Please specifiy a name. Empty name is not allowed.</source>
        <translation>Escriba un nombre.</translation>
    </message>
    <message>
        <source>Do you want to delete all rows in list &apos;%s&apos;?</source>
        <translation>¿Eliminar todas las filas de la lista «%s»?</translation>
    </message>
    <message>
        <source>Do you want to delete list &apos;%s&apos; and all its data?</source>
        <translation>¿Eliminar la lista «%s» con todo su contenido?</translation>
    </message>
    <message>
        <source>Inventory List Options</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Quillory is unable to open the data file. Please make sure the storage card is inserted.</source>
        <translation>No se puede abrir el archivo de datos. Compruebe que la tarjeta de memoria está insertada.</translation>
    </message>
    <message>
        <source>The data file cannot be found. Do you want to create a new data file at the same location? Tap No to try to locate it again.</source>
        <translation>No se encuentra el archivo de datos. ¿Crear uno nuevo en el mismo lugar? Toque No para volver a buscarlo.</translation>
    </message>
    <message>
        <source>No record matched the criteria.</source>
        <translation>Ninguna fila cumple la condición.</translation>
    </message>
    <message>
        <source>Import is completed with errors. Data may not be imported properly.</source>
        <translation>La importación terminó con errores. Pueden faltar datos.</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Checkbox</source>
        <translation>Casilla</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Precio</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Entero</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Expiry Date</source>
        <translation>Caducidad</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>contains</source>
        <extracomment>The conditions stand between a column and a value: Price &quot;greater than&quot; 3.50.</extracomment>
        <translation>contiene</translation>
    </message>
    <message>
        <source>equals to</source>
        <translation>igual a</translation>
    </message>
    <message>
        <source>not equals to</source>
        <translation>distinto de</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>mayor que</translation>
    </message>
    <message>
        <source>greater than or equals to</source>
        <translation>mayor o igual que</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>menor que</translation>
    </message>
    <message>
        <source>less than or equals to</source>
        <translation>menor o igual que</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>These stand before a date: Opened &quot;on or after&quot; 10 May.</extracomment>
        <translation>el</translation>
    </message>
    <message>
        <source>not on</source>
        <translation>no el</translation>
    </message>
    <message>
        <source>after</source>
        <translation>después del</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>desde el</translation>
    </message>
    <message>
        <source>before</source>
        <translation>antes del</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>hasta el</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Unable to create list table!</source>
        <translation>¡No se puede crear la tabla de listas!</translation>
    </message>
    <message>
        <source>Unable to create user database!</source>
        <translation>¡No se puede crear la base de datos!</translation>
    </message>
    <message>
        <source>Unable to create inventory table!</source>
        <translation>¡No se puede crear la tabla de la lista!</translation>
    </message>
    <message>
        <source>Unable to open data file. Error: %d</source>
        <translation>No se puede abrir el archivo de datos. Error: %d</translation>
    </message>
    <message>
        <source>Out of memory!</source>
        <translation>¡Memoria insuficiente!</translation>
    </message>
    <message>
        <source>To begin using Quillory, please choose a name and location to store all your inventory lists. Tap OK to continue.</source>
        <translation>Para empezar, elija el nombre y el lugar del archivo que guardará todas sus listas. Toque Aceptar para continuar.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>to colour</source>
        <extracomment>Stands between a number and a colour: &quot;Enable row colour when count is less than or equal to&quot; 3 &quot;to colour&quot; red.</extracomment>
        <translation>en</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>Campo:</translation>
    </message>
    <message>
        <source>Condition:</source>
        <translation>Condición:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valor:</translation>
    </message>
    <message>
        <source>Inventory Database</source>
        <translation>Datos de Quillory</translation>
    </message>
    <message>
        <source>Text Files</source>
        <translation>Archivos de texto</translation>
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
        <translation>caducado</translation>
    </message>
</context>
</TS>
