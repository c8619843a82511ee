<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Calendar</name>
    <message>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
</context>
<context>
    <name>Colours</name>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>Bleu marine</translation>
    </message>
    <message>
        <source>Azure</source>
        <translation>Azur</translation>
    </message>
    <message>
        <source>Midnight blue</source>
        <translation>Bleu nuit</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
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
        <translation>Rose pâle</translation>
    </message>
    <message>
        <source>Slate blue</source>
        <translation>Bleu ardoise</translation>
    </message>
    <message>
        <source>Dark plum</source>
        <translation>Prune</translation>
    </message>
    <message>
        <source>Pale cyan</source>
        <translation>Cyan pâle</translation>
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
        <translation>Vert vif</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Bleu canard</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Olive</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Bleu pâle</translation>
    </message>
    <message>
        <source>Periwinkle</source>
        <translation>Pervenche</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Pale orange</source>
        <translation>Orange pâle</translation>
    </message>
    <message>
        <source>Dusky blue</source>
        <translation>Bleu cendré</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Bleu ciel</translation>
    </message>
    <message>
        <source>Leaf green</source>
        <translation>Vert feuille</translation>
    </message>
    <message>
        <source>Pale green</source>
        <translation>Vert pâle</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavande</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Mauve</source>
        <translation>Mauve</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Pourpre</translation>
    </message>
    <message>
        <source>Amber</source>
        <translation>Ambre</translation>
    </message>
    <message>
        <source>Sage</source>
        <translation>Sauge</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Raspberry</source>
        <translation>Framboise</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Vert foncé</translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>Prints a line per list, in the order of their names: name TAB number of rows.

  --json               name, rows, icon and columns of each list
</source>
        <translation>Affiche une ligne par liste, dans l&apos;ordre des noms : nom TAB nombre de lignes.

  --json               nom, lignes, icône et colonnes de chaque liste
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
        <translation>Crée une liste et n&apos;affiche rien. Ses premières colonnes sont Name et Quantity.

  --column NAME:TYPE   ajoute une colonne ; TYPE est string, checkbox, price,
                       integer, date ou expiry (qui n&apos;a pas besoin de NAME).
                       Peut être répété.
  --warn-count N       avertit des lignes dont la quantité est N ou moins
  --warn-expiry        avertit des lignes dont la date de péremption est
                       atteinte
  --icon N             icône 0 à 42
  --create             crée le fichier de données s&apos;il n&apos;existe pas
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
        <translation>  --where CONDITION    seulement les lignes qui la remplissent : « COLUMN
                       CONDITION VALUE », comme &quot;Name contains tea&quot;,
                       &quot;Quantity &lt; 3&quot;, &quot;Opened = Checked&quot;. Les conditions
                       sont celles des filtres, par leurs mots anglais ou
                       = != &gt; &gt;= &lt; &lt;=. Comme
                       dans les filtres, != sur des textes, nombres et prix
                       trouve ce que = trouve. Les nombres se lisent comme ils
                       sont affichés. Peut être répété : toutes doivent être
                       remplies.
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
        <translation>Affiche une ligne de noms de colonnes, puis les lignes dans l&apos;ordre des noms,
avec TAB entre les champs. Les caractères de contrôle des textes deviennent des
espaces.

  --sort COLUMN        dans l&apos;ordre croissant d&apos;une colonne
  --descending         dans l&apos;autre sens
  --no-header          sans la ligne de noms de colonnes
  --json               un objet par ligne ; dates en YYYY-MM-DD, valeurs
                       absentes en null
</translation>
    </message>
    <message>
        <source>Looks for a text in every column of every list, whatever its case and accents, and prints a
line per value that has it: list TAB row TAB column TAB value.

  --json               list, row, column and text of each
</source>
        <translation>Cherche un texte dans toutes les colonnes de toutes les listes, sans égard aux
majuscules et aux accents, et affiche une ligne par valeur trouvée : liste TAB
ligne TAB colonne TAB valeur.

  --json               liste, ligne, colonne et texte de chacune
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
        <translation>Écrit les lignes en texte, comme « Exporter la liste » : UTF-16, TAB entre les
champs, CR LF après chaque ligne. Sans FILE, ou avec -, sur la sortie standard.
Un FILE existant est remplacé.

  --dates iso          dates en YYYY-MM-DD, lues partout de la même façon
  --format NAME        csv ou tsv, une table pour d&apos;autres programmes, en
                       UTF-8, avec les noms de colonnes en première ligne :
                       dates en YYYY-MM-DD, point décimal, true et false ;
                       json, comme l&apos;affiche show ; ou html, une page à lire
  --all DIR            toutes les listes dans un dossier, créé au besoin : un
                       fichier pour chacune, en csv sauf indication contraire,
                       et lists.json qui les décrit
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
        <translation>Ajoute une ligne pour chaque ligne d&apos;un fichier texte, comme « Importer la
liste », et affiche combien sont entrées. FILE - est l&apos;entrée standard. Chaque
ligne doit finir par CR LF, la dernière aussi.

  --columns &quot;A,B&quot;      les colonnes que remplissent les champs d&apos;une ligne ;
                       les autres suivent dans l&apos;ordre de la liste, qui vaut
                       aussi sans cette option
  --encoding NAME      le codage du fichier : utf-8, utf-16 ou le numéro d&apos;une
                       page de codes comme 1252
  --format NAME        csv ou tsv, des tables comme les écrit export : la
                       première ligne nomme des colonnes ; en csv virgule,
                       point-virgule ou TAB séparent les champs. Toutes les
                       lignes entrent, ou aucune
  --match COLUMN       pour une table : modifie la ligne qui a la même valeur
                       dans cette colonne, et en ajoute une s&apos;il n&apos;y en a pas
  --all DIR            crée chaque liste que décrit lists.json dans un dossier,
                       et les affiche
  --create             avec --all : crée le fichier de données s&apos;il n&apos;existe
                       pas
  --dry-run            n&apos;enregistre rien, affiche combien de lignes entreraient
</translation>
    </message>
    <message>
        <source>Prints a line per total of a number or price column: name TAB total, with a point before
decimals.

  --json               name and total of each
</source>
        <translation>Affiche une ligne par total d&apos;une colonne de nombres ou de prix : nom TAB
total, avec un point décimal.

  --json               nom et total de chacune
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
        <translation>Affiche les lignes des listes dont les avertissements sont actifs : liste TAB
ligne TAB « low », « expired » ou la date de péremption de la ligne.

  --within DAYS        aussi les lignes qui se périment dans ce nombre de
                       jours
  --json               liste, ligne, état et nombre ou date de chacune
  --ics                affiche plutôt un calendrier de toutes les dates de
                       péremption, en iCalendar ; avec --within seulement
                       jusque-là
  --notify             n&apos;affiche rien, mais montre une fois par jour au plus,
                       en notification du bureau, ce qui est échu depuis la
                       dernière fois. La toucher ouvre la liste ; jusque-là, ou
                       jusqu&apos;à ce qu&apos;elle soit fermée, la commande attend.

Se termine par 3 si quelque chose est échu, par 0 sinon.
</translation>
    </message>
    <message>
        <source>Turns a notification each morning of what is due on or off, or prints whether it is on.
Needs systemd, whose timer quillory-reminders then runs &quot;quillory due --notify&quot;.
</source>
        <translation>Active ou désactive une notification chaque matin de ce qui est échu, ou
affiche si elle est active. Demande systemd, dont le minuteur
quillory-reminders lance alors « quillory due --notify ».
</translation>
    </message>
    <message>
        <source>Adds a row with these values and prints 1. Numbers are read as they are shown, a checkbox is
Checked or Unchecked.

  --dry-run            stores nothing
</source>
        <translation>Ajoute une ligne avec ces valeurs et affiche 1. Les nombres se lisent comme ils
sont affichés, une case est Checked ou Unchecked.

  --dry-run            n&apos;enregistre rien
</translation>
    </message>
    <message>
        <source>Gives all rows that meet the conditions these values, or none of them if one cannot be
stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Donne ces valeurs à toutes les lignes qui remplissent les conditions, ou à
aucune si l&apos;une ne peut pas être enregistrée, et affiche combien il y en a.

  --dry-run            n&apos;enregistre rien
</translation>
    </message>
    <message>
        <source>Counts all rows that meet the conditions up by +N or down by -N, or none of them if one
cannot be stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>Augmente de +N ou diminue de -N toutes les lignes qui remplissent les
conditions, ou aucune si l&apos;une ne peut pas être enregistrée, et affiche combien
il y en a.

  --dry-run            n&apos;enregistre rien
</translation>
    </message>
    <message>
        <source>Deletes all rows that meet the conditions, or none of them if one cannot be, and prints how
many there are.

  --dry-run            deletes nothing
</source>
        <translation>Supprime toutes les lignes qui remplissent les conditions, ou aucune si l&apos;une
ne peut pas l&apos;être, et affiche combien il y en a.

  --dry-run            ne supprime rien
</translation>
    </message>
    <message>
        <source>Gives a list another name and prints nothing.

  --dry-run            stores nothing
</source>
        <translation>Donne un autre nom à une liste et n&apos;affiche rien.

  --dry-run            n&apos;enregistre rien
</translation>
    </message>
    <message>
        <source>Deletes a list with all its rows and prints how many these are.

  --dry-run            deletes nothing
</source>
        <translation>Supprime une liste avec toutes ses lignes et affiche combien il y en avait.

  --dry-run            ne supprime rien
</translation>
    </message>
    <message>
        <source>Reads the whole data file. Prints &quot;ok&quot;, or what is wrong and exits with 1.
</source>
        <translation>Lit tout le fichier de données. Affiche « ok », ou ce qui ne va pas et se
termine alors par 1.
</translation>
    </message>
    <message>
        <source>Writes a consistent copy of the data file, also while it is in use. FILE must not exist.
</source>
        <translation>Écrit une copie cohérente du fichier de données, même pendant qu&apos;il est
utilisé. FILE ne doit pas exister.
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
        <translation>Après chaque exécution qui a modifié des listes ou des lignes du fichier de
données configuré, une copie en est conservée : les trois dernières, ou autant
que le dit KeptCopies=0...9 dans les réglages, et de plus anciennes tant que
l&apos;ensemble ne dépasse pas 32 Mo. Elles sont supprimées 90 jours après la
disparition du fichier.

Sans option, affiche une ligne par copie, la plus récente d&apos;abord : numéro TAB
heure TAB octets, puis une ligne par liste lisible dans le fichier de données
lui-même, même endommagé : salvage TAB liste TAB lignes TAB ce qui est perdu.
Sinon, crée le nouveau fichier de données FILE, qui ne doit pas exister :

  --from N             à partir de la copie N
  --salvage            à partir de ce qui est encore lisible du fichier de
                       données, et affiche ce que c&apos;est ; le fichier de données
                       n&apos;est que lu
  --json               un objet par copie et par liste
</translation>
    </message>
    <message>
        <source>none so far</source>
        <translation>aucun pour l&apos;instant</translation>
    </message>
    <message>
        <source>  --data FILE          works on another data file than the configured one (%1)

Here dates are written %2 and numbers %3, but in text files with a point and no
groups. Text files are written in UTF-16 behind a byte-order mark, and read in code page
%4 where there is none.
</source>
        <extracomment>%1 is the data file, %2 such as dd/MM/yyyy, %3 such as 1,234.50, %4 such as 1252.</extracomment>
        <translation>  --data FILE          travaille sur un autre fichier de données que celui
                       configuré (%1)

Ici les dates s&apos;écrivent %2 et les nombres %3, mais dans les fichiers texte
avec un point et sans groupes. Les fichiers texte sont écrits en UTF-16 après
une marque d&apos;ordre des octets, et lus en page de codes %4 quand il n&apos;y en a
pas.
</translation>
    </message>
    <message>
        <source>
Opens the window, showing LIST if it is named. The commands work without it:

</source>
        <translation>
Ouvre la fenêtre, sur LIST si elle est nommée. Les commandes s&apos;en passent :

</translation>
    </message>
    <message>
        <source>
  --new-list           opens the window with the page of a new list
  --help               help, on a command if one is named
  --version            the version
</source>
        <translation>
  --new-list           ouvre la fenêtre sur la page d&apos;une nouvelle liste
  --help               l&apos;aide, sur une commande si elle est nommée
  --version            la version
</translation>
    </message>
    <message>
        <source>
Exit status: 0 done, 1 failed, 2 wrong usage, 3 something is due.
</source>
        <translation>
Code de retour : 0 fait, 1 échec, 2 mauvais usage, 3 quelque chose est échu.
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
        <translation>Écrit une liste à imprimer ou à envoyer : ses lignes, où ce qui manque ou est périmé
est marqué, les totaux, et les dessins de ce qui se périme dans les douze
prochains mois et de ce dont il reste le moins. Sans FILE, ou avec -, sur la sortie
standard. Un FILE existant est remplacé.

  --all                toutes les listes dans un seul rapport
  --format NAME        pdf, ou html pour une page qui n&apos;a besoin d&apos;aucun autre
                       fichier ; sinon ce que dit la fin du nom de FILE, ou pdf
</translation>
    </message>
    <message>
        <source>Prints what merging OTHER, another device&apos;s copy of the data file, would do, as merge prints it.
Changes nothing. Exits with 3 if OTHER has something that the data file has not.

  --base FILE          what both come from, where no kept copy is
  --json               an object per line
</source>
        <translation>Montre ce que ferait la réunion avec OTHER, la copie du fichier de données d’un autre appareil,
comme merge le montre. Ne change rien. Se termine par 3 si OTHER a quelque chose qui manque au
fichier de données.

  --base FILE          l’origine des deux, s’il n’en reste pas de copie
  --json               un objet par ligne
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
        <translation>Réunit le fichier de données et OTHER, sa copie d’un autre appareil, dans le fichier de données.
OTHER n’est que lu. Montre une ligne pour ce qui est venu ou parti et pour chaque valeur que les
deux avaient modifiée : quoi TAB liste TAB ligne TAB colonne TAB valeur TAB autre valeur. Des
copies des deux fichiers sont gardées avant.

  --base FILE          l’origine des deux, s’il n’en reste pas de copie
  --dry-run            n’enregistre rien
  --json               un objet par ligne
</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>Enable row colour when count is less than or equal to</source>
        <translation>Colorer la ligne quand le nombre est inférieur ou égal à</translation>
    </message>
    <message>
        <source>Enable row colour when expiry date is reached to colour</source>
        <translation>Colorer la ligne à la date de péremption, en</translation>
    </message>
    <message>
        <source>Display list using landscape mode</source>
        <translation>Afficher les listes en paysage</translation>
    </message>
    <message>
        <source>Landscape (right-handed)</source>
        <translation>Paysage (main droite)</translation>
    </message>
    <message>
        <source>Landscape (left-handed)</source>
        <translation>Paysage (main gauche)</translation>
    </message>
    <message>
        <source>Use alternate row colour</source>
        <translation>Teinter une ligne sur deux</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
</context>
<context>
    <name>DataFileOpener</name>
    <message>
        <source>The data file is damaged. There is a good copy of %1.

Do you want to go on with it? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Le fichier de données est endommagé. Il existe une bonne copie du %1.

Continuer avec elle&#xa0;? Elle sera écrite dans un nouveau fichier&#xa0;; le fichier endommagé reste tel quel.</translation>
    </message>
    <message>
        <source>The new file could not be written. Error: %1</source>
        <translation>Le nouveau fichier n’a pas pu être écrit. Erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Beside the data file lay the journal of another file. It is kept as %1.</source>
        <translation>À côté du fichier de données se trouvait le journal d’un autre fichier. Il est conservé sous %1.</translation>
    </message>
    <message>
        <source>Another program has written into the data file. What it holds now: %1, %2.

Do you want to go on with that? It is written to a new file; the old one stays as it is.</source>
        <translation>Un autre programme a écrit dans le fichier de données. Il contient maintenant&#xa0;: %1, %2.

Continuer ainsi&#xa0;? Le contenu sera écrit dans un nouveau fichier&#xa0;; l’ancien reste tel quel.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file: %1, %2.

Do you want to go on with that? It is written to a new file; the damaged one stays as it is.</source>
        <translation>Ce qui reste lisible du fichier endommagé&#xa0;: %1, %2.

Continuer ainsi&#xa0;? Le contenu sera écrit dans un nouveau fichier&#xa0;; le fichier endommagé reste tel quel.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s)</source>
        <translation>
            <numerusform>%n liste</numerusform>
            <numerusform>%n listes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Deletions</name>
    <message>
        <source>The list &apos;%1&apos; was deleted.</source>
        <translation>La liste «&#xa0;%1&#xa0;» est supprimée.</translation>
    </message>
    <message>
        <source>All rows of &apos;%1&apos; were deleted.</source>
        <translation>Toutes les lignes de «&#xa0;%1&#xa0;» sont supprimées.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was deleted.</source>
        <translation>«&#xa0;%1&#xa0;» est supprimé.</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Welcome to Quillory</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Column Definition</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Import Column Order</source>
        <translation>Ordre à l’import</translation>
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
        <translation>Boîte</translation>
    </message>
    <message>
        <source>Jar</source>
        <translation>Bocal</translation>
    </message>
    <message>
        <source>Refrigerator</source>
        <translation>Réfrigérateur</translation>
    </message>
    <message>
        <source>Freezer</source>
        <translation>Congélateur</translation>
    </message>
    <message>
        <source>Apple</source>
        <translation>Pomme</translation>
    </message>
    <message>
        <source>Carrot</source>
        <translation>Carotte</translation>
    </message>
    <message>
        <source>Bread</source>
        <translation>Pain</translation>
    </message>
    <message>
        <source>Meat</source>
        <translation>Viande</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>Poisson</translation>
    </message>
    <message>
        <source>Milk</source>
        <translation>Lait</translation>
    </message>
    <message>
        <source>Bottle</source>
        <translation>Bouteille</translation>
    </message>
    <message>
        <source>Wine</source>
        <translation>Vin</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>Café</translation>
    </message>
    <message>
        <source>Baby bottle</source>
        <translation>Biberon</translation>
    </message>
    <message>
        <source>Pills</source>
        <translation>Comprimés</translation>
    </message>
    <message>
        <source>First aid</source>
        <translation>Premiers soins</translation>
    </message>
    <message>
        <source>Cosmetics</source>
        <translation>Cosmétiques</translation>
    </message>
    <message>
        <source>Cleaning spray</source>
        <translation>Spray</translation>
    </message>
    <message>
        <source>Shirt</source>
        <translation>Chemise</translation>
    </message>
    <message>
        <source>Shoe</source>
        <translation>Chaussure</translation>
    </message>
    <message>
        <source>Jewel</source>
        <translation>Bijou</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Montre</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Pièces</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Timbre</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Livre</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Game pad</source>
        <translation>Manette</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Puzzle</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Pile</translation>
    </message>
    <message>
        <source>Plug</source>
        <translation>Prise</translation>
    </message>
    <message>
        <source>Bulb</source>
        <translation>Ampoule</translation>
    </message>
    <message>
        <source>Hammer</source>
        <translation>Marteau</translation>
    </message>
    <message>
        <source>Screw</source>
        <translation>Vis</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Peinture</translation>
    </message>
    <message>
        <source>Plant</source>
        <translation>Plante</translation>
    </message>
    <message>
        <source>Paw</source>
        <translation>Patte</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>Voiture</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
</context>
<context>
    <name>ListDefinitions</name>
    <message>
        <source>Another device has deleted this list.</source>
        <translation>Un autre appareil a supprimé cette liste.</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>it is the data file itself</source>
        <translation>c’est le fichier de données lui-même</translation>
    </message>
    <message>
        <source>it is the name of the data file&apos;s journal</source>
        <translation>c’est le nom du journal du fichier de données</translation>
    </message>
</context>
<context>
    <name>ListTransfer</name>
    <message numerus="yes">
        <source>The import was cancelled. %n row(s) are in the list already.</source>
        <translation>
            <numerusform>L’import est annulé. %n ligne est déjà dans la liste.</numerusform>
            <numerusform>L’import est annulé. %n lignes sont déjà dans la liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates such as %1 were read in the form %2.</source>
        <extracomment>%1 is such as 10/05/2026, %2 such as dd/MM/yyyy.</extracomment>
        <translation>Les dates comme %1 ont été lues sous la forme %2.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>Le fichier n’a pas pu être écrit&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are in the file. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Cette liste n’est lisible qu’en partie&#xa0;: %n ligne est dans le fichier. «&#xa0;quillory restore&#xa0;» montre les copies et ce qui peut être sauvé.</numerusform>
            <numerusform>Cette liste n’est lisible qu’en partie&#xa0;: %n lignes sont dans le fichier. «&#xa0;quillory restore&#xa0;» montre les copies et ce qui peut être sauvé.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>List Properties...</source>
        <translation>Propriétés...</translation>
    </message>
    <message>
        <source>Rename List</source>
        <translation>Renommer la liste</translation>
    </message>
    <message>
        <source>Import List...</source>
        <translation>Importer la liste...</translation>
    </message>
    <message>
        <source>Export List...</source>
        <translation>Exporter la liste...</translation>
    </message>
    <message>
        <source>Delete List...</source>
        <translation>Supprimer la liste...</translation>
    </message>
    <message>
        <source>Delete All Records...</source>
        <translation>Supprimer les lignes...</translation>
    </message>
    <message>
        <source>Open Read Only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Options...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>À propos...</translation>
    </message>
    <message>
        <source>Add Expiry Date Column</source>
        <translation>Ajouter la péremption</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Modify...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Create Copy</source>
        <translation>Créer une copie</translation>
    </message>
    <message>
        <source>View Summary...</source>
        <translation>Voir les totaux...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Rechercher...</translation>
    </message>
    <message>
        <source>Set Filters...</source>
        <translation>Définir les filtres...</translation>
    </message>
    <message>
        <source>Clear Filters</source>
        <translation>Effacer les filtres</translation>
    </message>
    <message>
        <source>Add 1</source>
        <translation>Ajouter 1</translation>
    </message>
    <message>
        <source>Subtract 1</source>
        <translation>Retirer 1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Quillory::ColourGrid</name>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
</context>
<context>
    <name>Quillory::ColumnsPanel</name>
    <message>
        <source>A new column goes before the selected one. Once the list is made its columns stay.</source>
        <translation>Une nouvelle colonne se place avant celle qui est sélectionnée. Une fois la liste créée, ses colonnes ne changent plus.</translation>
    </message>
</context>
<context>
    <name>Quillory::DataFileSession</name>
    <message>
        <source>The change could not be saved. Error: %1

Tap Retry to open the data file again.</source>
        <translation>La modification n’a pas pu être enregistrée. Erreur&#xa0;: %1

Touchez Recommencer pour rouvrir le fichier de données.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. The old one is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>Un autre fichier a pris la place du fichier de données. L’ancien est conservé en copie&#xa0;; «&#xa0;quillory restore&#xa0;» montre les copies.</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. No copy could be kept of the old one.</source>
        <translation>Un autre fichier a pris la place du fichier de données. Aucune copie de l’ancien n’a pu être conservée.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. What it held is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>Le fichier de données n’est plus à sa place. Son contenu est conservé en copie&#xa0;; «&#xa0;quillory restore&#xa0;» montre les copies.</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. No copy could be kept of it.</source>
        <translation>Le fichier de données n’est plus à sa place. Aucune copie n’a pu en être conservée.</translation>
    </message>
    <message>
        <source>No copy of the data file could be kept. Error: %1</source>
        <translation>Aucune copie du fichier de données n’a pu être conservée. Erreur&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Quillory::DateField</name>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>pas de date</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>Typed in place of a date, in small letters.</extracomment>
        <translation>aujourd&apos;hui</translation>
    </message>
    <message>
        <source>not a date</source>
        <translation>pas une date</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date. Type it as in %2, or pick it from the calendar.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date. Écrivez-la comme %2, ou choisissez-la dans le calendrier.</translation>
    </message>
</context>
<context>
    <name>Quillory::DeviceMerge</name>
    <message>
        <source>Another device has changed the lists, and so have you. Do you want to bring both together?</source>
        <translation>Un autre appareil a modifié les listes, et vous aussi. Réunir les deux ?</translation>
    </message>
    <message>
        <source>Beside the data file lies another device&apos;s version, &quot;%1&quot;. Do you want to bring both together?</source>
        <translation>À côté du fichier de données se trouve la version d’un autre appareil, « %1 ». Réunir les deux ?</translation>
    </message>
    <message>
        <source>The two versions could not be brought together; both are as they were. Error: %1</source>
        <translation>Les deux versions n’ont pas pu être réunies ; elles sont telles qu’elles étaient. Erreur : %1</translation>
    </message>
</context>
<context>
    <name>Quillory::FilterBar</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 lignes sur %2</translation>
    </message>
</context>
<context>
    <name>Quillory::FiltersPage</name>
    <message>
        <source>No filters yet. Tap Add to make one.</source>
        <translation>Pas encore de filtre. Touchez Ajouter pour en créer un.</translation>
    </message>
</context>
<context>
    <name>Quillory::GeneralPanel</name>
    <message>
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
</context>
<context>
    <name>Quillory::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Quillory.htm</source>
        <extracomment>The file of the help, such as Quillory_de.htm where it is there in German.</extracomment>
        <translation>Quillory_fr.htm</translation>
    </message>
</context>
<context>
    <name>Quillory::HomeList</name>
    <message>
        <source>No lists yet. Tap New to make one.</source>
        <translation>Pas encore de liste. Touchez Nouveau pour en créer une.</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGrid</name>
    <message>
        <source>Icons</source>
        <translation>Icônes</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGridPage</name>
    <message>
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
</context>
<context>
    <name>Quillory::IconPicker</name>
    <message>
        <source>Next icon</source>
        <translation>Icône suivante</translation>
    </message>
    <message>
        <source>Previous icon</source>
        <translation>Icône précédente</translation>
    </message>
    <message>
        <source>All icons</source>
        <translation>Toutes les icônes</translation>
    </message>
</context>
<context>
    <name>Quillory::MainFrame</name>
    <message>
        <source>Choose a list to see its rows.</source>
        <translation>Choisissez une liste pour voir ses lignes.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Some lists cannot be read. Error: %1</source>
        <translation>Certaines listes sont illisibles. Erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Updated from another device</source>
        <translation>Mis à jour depuis un autre appareil</translation>
    </message>
</context>
<context>
    <name>Quillory::MenuKey</name>
    <message>
        <source>opens a menu</source>
        <translation>ouvre un menu</translation>
    </message>
</context>
<context>
    <name>Quillory::MergePage</name>
    <message>
        <source>name of the list</source>
        <translation>nom de la liste</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>icône</translation>
    </message>
    <message>
        <source>warning of counts</source>
        <translation>alerte de quantité</translation>
    </message>
    <message>
        <source>warning of expiry</source>
        <translation>alerte d’expiration</translation>
    </message>
    <message>
        <source>count to warn at</source>
        <translation>seuil d’alerte</translation>
    </message>
    <message>
        <source>colour of counts</source>
        <translation>couleur des quantités</translation>
    </message>
    <message>
        <source>colour of expiry</source>
        <translation>couleur d’expiration</translation>
    </message>
    <message>
        <source>The list came from the other device.</source>
        <translation>La liste vient de l’autre appareil.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device.</source>
        <translation>La liste a été supprimée sur l’autre appareil.</translation>
    </message>
    <message>
        <source>The list was deleted here and changed on the other device: it is back.</source>
        <translation>La liste a été supprimée ici et modifiée sur l’autre appareil : elle est de retour.</translation>
    </message>
    <message>
        <source>The list was deleted on the other device and changed here: it stays.</source>
        <translation>La liste a été supprimée sur l’autre appareil et modifiée ici : elle reste.</translation>
    </message>
    <message>
        <source>Both devices had made this list: it is one now.</source>
        <translation>Les deux appareils avaient créé cette liste : il n’y en a plus qu’une.</translation>
    </message>
    <message>
        <source>%1: came from the other device.</source>
        <translation>%1 : vient de l’autre appareil.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device.</source>
        <translation>%1 : ligne supprimée sur l’autre appareil.</translation>
    </message>
    <message>
        <source>%1: was deleted here and changed on the other device, and is back.</source>
        <translation>%1 : ligne supprimée ici et modifiée sur l’autre appareil ; elle est de retour.</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device and changed here, and stays.</source>
        <translation>%1 : ligne supprimée sur l’autre appareil et modifiée ici ; elle reste.</translation>
    </message>
    <message>
        <source>%1: a copy of the row has the other values.</source>
        <translation>%1 : une copie de la ligne a les autres valeurs.</translation>
    </message>
    <message>
        <source>%1: %2 came in the place of %3.</source>
        <extracomment>Such as &quot;Tea, Quantity: 5 came in the place of 3.&quot;</extracomment>
        <translation>%1 : %2 remplace %3.</translation>
    </message>
    <message>
        <source>%1: both devices had changed it. It is %2; the other was %3.</source>
        <translation>%1 : modifié sur les deux appareils. C’est %2 ; l’autre était %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted. It is %2; the other was %3.</source>
        <translation>%1 : compté sur les deux appareils. C’est %2 ; l’autre était %3.</translation>
    </message>
    <message>
        <source>%1: both devices had counted beyond the limit. It is %2; the other was %3.</source>
        <translation>%1 : compté au-delà de la limite sur les deux appareils. C’est %2 ; l’autre était %3.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A row&apos;s name and that of a column.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>In the place of a value that is not there.</extracomment>
        <translation>rien</translation>
    </message>
    <message>
        <source>Brought together</source>
        <translation>Versions réunies</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Et %n autre.</numerusform>
            <numerusform>Et %n autres.</numerusform>
        </translation>
    </message>
    <message>
        <source>What both come from was not known any more. So nothing was deleted, and counts that both had changed were not added up.</source>
        <translation>L’origine commune n’était plus connue. Rien n’a donc été supprimé, et les quantités modifiées des deux côtés n’ont pas été additionnées.</translation>
    </message>
</context>
<context>
    <name>Quillory::OptionsPanel</name>
    <message>
        <source>Only lists with an expiry date column can warn of dates.</source>
        <translation>Seules les listes avec une date de péremption peuvent en avertir.</translation>
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
        <translation>Aide</translation>
    </message>
    <message>
        <source>Do you want to discard what you have entered?</source>
        <translation>Abandonner ce que vous avez saisi&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Quillory::RowsView</name>
    <message>
        <source>read-only</source>
        <translation>lecture seule</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are shown. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>Cette liste n’est lisible qu’en partie&#xa0;: %n ligne est affichée. «&#xa0;quillory restore&#xa0;» montre les copies et ce qui peut être sauvé.</numerusform>
            <numerusform>Cette liste n’est lisible qu’en partie&#xa0;: %n lignes sont affichées. «&#xa0;quillory restore&#xa0;» montre les copies et ce qui peut être sauvé.</numerusform>
        </translation>
    </message>
    <message>
        <source>No row meets the filters.</source>
        <translation>Aucune ligne ne répond aux filtres.</translation>
    </message>
    <message>
        <source>This list has no rows.</source>
        <translation>Cette liste n’a pas de ligne.</translation>
    </message>
    <message>
        <source>No rows yet. Tap New to add one.</source>
        <translation>Pas encore de ligne. Touchez Nouveau pour en ajouter une.</translation>
    </message>
    <message>
        <source>This list can be read only in part, so nothing is summed up. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>Cette liste n’est lisible qu’en partie&#xa0;; rien n’est donc additionné. «&#xa0;quillory restore&#xa0;» montre les copies et ce qui peut être sauvé.</translation>
    </message>
</context>
<context>
    <name>Quillory::SummaryPage</name>
    <message>
        <source>Totals</source>
        <translation>Totaux</translation>
    </message>
</context>
<context>
    <name>Quillory::ThresholdEdit</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>The least and the greatest number that can be typed.</extracomment>
        <translation>de %1 à %2</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Moins</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
</context>
<context>
    <name>Quillory::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>past</source>
        <extracomment>The first bar of a drawing of months: what is expired already.</extracomment>
        <translation>passé</translation>
    </message>
    <message>
        <source>What expires in the next twelve months</source>
        <translation>Ce qui se périme dans les douze prochains mois</translation>
    </message>
    <message>
        <source>Of what fewest are left, beside the threshold</source>
        <translation>Ce dont il reste le moins, à côté de la limite</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totaux</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Strings</name>
    <message>
        <source>Inventory List</source>
        <translation>Listes</translation>
    </message>
    <message>
        <source>Do you want to delete the selected row?</source>
        <translation>Supprimer la ligne sélectionnée&#xa0;?</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>New Inventory List</source>
        <translation>Nouvelle liste</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Please specifiy a name. Empty name is not allowed.</source>
        <translation>Veuillez donner un nom.</translation>
    </message>
    <message>
        <source>Do you want to delete all rows in list &apos;%s&apos;?</source>
        <translation>Supprimer toutes les lignes de la liste «&#xa0;%s&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Do you want to delete list &apos;%s&apos; and all its data?</source>
        <translation>Supprimer la liste «&#xa0;%s&#xa0;» et tout son contenu&#xa0;?</translation>
    </message>
    <message>
        <source>Inventory List Options</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Quillory is unable to open the data file. Please make sure the storage card is inserted.</source>
        <translation>Le fichier de données ne peut pas être ouvert. Vérifiez que la carte mémoire est bien insérée.</translation>
    </message>
    <message>
        <source>The data file cannot be found. Do you want to create a new data file at the same location? Tap No to try to locate it again.</source>
        <translation>Le fichier de données est introuvable. En créer un nouveau au même endroit&#xa0;? Touchez Non pour le chercher à nouveau.</translation>
    </message>
    <message>
        <source>No record matched the criteria.</source>
        <translation>Aucune ligne ne répond à la condition.</translation>
    </message>
    <message>
        <source>Import is completed with errors. Data may not be imported properly.</source>
        <translation>L’import s’est terminé avec des erreurs. Des données peuvent manquer.</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Checkbox</source>
        <translation>Case à cocher</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prix</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Entier</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Expiry Date</source>
        <translation>Date de péremption</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>contains</source>
        <extracomment>The conditions stand between a column and a value: Price &quot;greater than&quot; 3.50.</extracomment>
        <translation>contient</translation>
    </message>
    <message>
        <source>equals to</source>
        <translation>égal à</translation>
    </message>
    <message>
        <source>not equals to</source>
        <translation>différent de</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>supérieur à</translation>
    </message>
    <message>
        <source>greater than or equals to</source>
        <translation>supérieur ou égal à</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>inférieur à</translation>
    </message>
    <message>
        <source>less than or equals to</source>
        <translation>inférieur ou égal à</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>These stand before a date: Opened &quot;on or after&quot; 10 May.</extracomment>
        <translation>le</translation>
    </message>
    <message>
        <source>not on</source>
        <translation>pas le</translation>
    </message>
    <message>
        <source>after</source>
        <translation>après le</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>à partir du</translation>
    </message>
    <message>
        <source>before</source>
        <translation>avant le</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>jusqu’au</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Unable to create list table!</source>
        <translation>Impossible de créer la table des listes&#xa0;!</translation>
    </message>
    <message>
        <source>Unable to create user database!</source>
        <translation>Impossible de créer la base de données&#xa0;!</translation>
    </message>
    <message>
        <source>Unable to create inventory table!</source>
        <translation>Impossible de créer la table de la liste&#xa0;!</translation>
    </message>
    <message>
        <source>Unable to open data file. Error: %d</source>
        <translation>Impossible d’ouvrir le fichier de données. Erreur&#xa0;: %d</translation>
    </message>
    <message>
        <source>Out of memory!</source>
        <translation>Mémoire insuffisante&#xa0;!</translation>
    </message>
    <message>
        <source>To begin using Quillory, please choose a name and location to store all your inventory lists. Tap OK to continue.</source>
        <translation>Pour commencer, choisissez le nom et l’emplacement du fichier où seront gardées toutes vos listes. Touchez OK pour continuer.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>to colour</source>
        <extracomment>Stands between a number and a colour: &quot;Enable row colour when count is less than or equal to&quot; 3 &quot;to colour&quot; red.</extracomment>
        <translation>en</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>Champ&#xa0;:</translation>
    </message>
    <message>
        <source>Condition:</source>
        <translation>Condition&#xa0;:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valeur&#xa0;:</translation>
    </message>
    <message>
        <source>Inventory Database</source>
        <translation>Données de Quillory</translation>
    </message>
    <message>
        <source>Text Files</source>
        <translation>Fichiers texte</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>low</source>
        <extracomment>Beside the name of a row of which few are left; short.</extracomment>
        <translation>bas</translation>
    </message>
    <message>
        <source>expired</source>
        <extracomment>Beside the name of a row whose expiry date is reached; short.</extracomment>
        <translation>périmé</translation>
    </message>
</context>
</TS>
