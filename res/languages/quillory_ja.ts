<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Calendar</name>
    <message>
        <source>Previous month</source>
        <translation>前の月</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>次の月</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
</context>
<context>
    <name>Colours</name>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>紺</translation>
    </message>
    <message>
        <source>Azure</source>
        <translation>紺碧</translation>
    </message>
    <message>
        <source>Midnight blue</source>
        <translation>濃紺</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>えび茶</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>赤紫</translation>
    </message>
    <message>
        <source>Pale pink</source>
        <translation>薄桃</translation>
    </message>
    <message>
        <source>Slate blue</source>
        <translation>灰青</translation>
    </message>
    <message>
        <source>Dark plum</source>
        <translation>暗い紫</translation>
    </message>
    <message>
        <source>Pale cyan</source>
        <translation>薄水色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>茶</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>明るい緑</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>青緑</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>オリーブ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>薄青</translation>
    </message>
    <message>
        <source>Periwinkle</source>
        <translation>藤青</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>ピンク</translation>
    </message>
    <message>
        <source>Pale orange</source>
        <translation>薄橙</translation>
    </message>
    <message>
        <source>Dusky blue</source>
        <translation>くすんだ青</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>空色</translation>
    </message>
    <message>
        <source>Leaf green</source>
        <translation>若葉</translation>
    </message>
    <message>
        <source>Pale green</source>
        <translation>薄緑</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>ラベンダー</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>すみれ</translation>
    </message>
    <message>
        <source>Mauve</source>
        <translation>藤紫</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Amber</source>
        <translation>琥珀</translation>
    </message>
    <message>
        <source>Sage</source>
        <translation>セージ</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>Raspberry</source>
        <translation>ラズベリー</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>深緑</translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>Prints a line per list, in the order of their names: name TAB number of rows.

  --json               name, rows, icon and columns of each list
</source>
        <translation>リストごとに 1 行を名前の順に表示します：名前 TAB 行の数。

  --json               各リストの名前、行の数、アイコン、列
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
        <translation>リストを作り、何も表示しません。最初の列は Name と Quantity です。

  --column NAME:TYPE   列を加えます。TYPE は string、checkbox、price、integer、
                       date、expiry のどれかです（expiry に NAME は要りませ
                       ん）。何度でも指定できます。
  --warn-count N       数量が N 以下の行を知らせます
  --warn-expiry        期限が来た行を知らせます
  --icon N             アイコン 0～42
  --create             データファイルがなければ作ります
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
        <translation>  --where CONDITION    条件に合う行だけにします：&quot;COLUMN CONDITION VALUE&quot;。例：
                       &quot;Name contains tea&quot;、&quot;Quantity &lt; 3&quot;、&quot;Opened =
                       Checked&quot;。条件はフィルターと同じで、英語の言葉か = != &gt;
                       &gt;= &lt; &lt;= で書きます。フィルターと同じく、テキスト、数、価
                       格では != は = と同じ行を見つけます。数は表示のとおりに
                       読みます。何度でも指定でき、すべてが成り立つ行になりま
                       す。
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
        <translation>列の名前の行に続けて、行を名前の順に TAB 区切りで表示します。テキスト中の制御文
字は空白になります。

  --sort COLUMN        列の昇順にします
  --descending         逆の順にします
  --no-header          列の名前の行を省きます
  --json               行ごとに 1 つのオブジェクト。日付は YYYY-MM-DD、値がなけ
                       れば null
</translation>
    </message>
    <message>
        <source>Looks for a text in every column of every list, whatever its case and accents, and prints a
line per value that has it: list TAB row TAB column TAB value.

  --json               list, row, column and text of each
</source>
        <translation>すべてのリストのすべての列からテキストを探し、見つかった値ごとに 1 行を表示しま
す：リスト TAB 行 TAB 列 TAB 値。大文字と小文字、アクセントは区別しません。

  --json               それぞれのリスト、行、列、テキスト
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
        <translation>「リストを書き出す」と同じように行をテキストで書きます：UTF-16、TAB 区切り、行
末は CR LF。FILE がないか - なら標準出力に書きます。既にある FILE は置き換えま
す。

  --dates iso          日付を YYYY-MM-DD にします。どこでも同じに読めます
  --format NAME        csv か tsv：ほかのプログラム用の UTF-8 の表で、1 行目は
                       列の名前、日付は YYYY-MM-DD、小数点は点、true と false。
                       json：show と同じ。html：読むためのページ
  --all DIR            すべてのリストをフォルダーに書きます（なければ作りま
                       す）：リストごとに 1 ファイル（指定がなければ csv）と、
                       その内容を示す lists.json
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
        <translation>「リストを読み込む」と同じようにテキストファイルの 1 行ごとに行を加え、加えた数
を表示します。FILE が - なら標準入力です。最後の行も含め、どの行も CR LF で終わ
る必要があります。

  --columns &quot;A,B&quot;      1 行の各項目が入る列。ここにない列はリストの順に続きま
                       す。この指定がなければリストの順です
  --encoding NAME      ファイルの文字コード：utf-8、utf-16、または 1252 のよう
                       なコードページの番号
  --format NAME        csv か tsv：export が書く表。1 行目は列の名前。csv の区
                       切りはコンマ、セミコロン、TAB のどれか。すべての行が入る
                       か、1 行も入りません
  --match COLUMN       表の場合：この列の値が同じ行を変更し、なければ加えます
  --all DIR            フォルダーの lists.json が示すリストをすべて作り、表示し
                       ます
  --create             --all と使います：データファイルがなければ作ります
  --dry-run            保存せず、加わるはずの行の数を表示します
</translation>
    </message>
    <message>
        <source>Prints a line per total of a number or price column: name TAB total, with a point before
decimals.

  --json               name and total of each
</source>
        <translation>数か価格の列の合計ごとに 1 行を表示します：名前 TAB 合計（小数点は点）。

  --json               それぞれの名前と合計
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
        <translation>通知が有効なリストの行を表示します：リスト TAB 行 TAB「low」、「expired」または
期限の日付。

  --within DAYS        この日数のうちに期限が来る行も含めます
  --json               それぞれのリスト、行、状態、数量または日付
  --ics                代わりに、すべての期限のカレンダーを iCalendar で表示し
                       ます。--within があればその日までです
  --notify             何も表示せず、前回から新たに対象になったものを 1 日に 1
                       回まで通知します。通知をタップするとリストが開きます。そ
                       れまで、または通知を閉じるまで待ちます。

対象があれば 3、なければ 0 で終わります。
</translation>
    </message>
    <message>
        <source>Turns a notification each morning of what is due on or off, or prints whether it is on.
Needs systemd, whose timer quillory-reminders then runs &quot;quillory due --notify&quot;.
</source>
        <translation>毎朝の通知を on か off にするか、有効かどうかを表示します。systemd が必要で、そ
のタイマー quillory-reminders が「quillory due --notify」を実行します。
</translation>
    </message>
    <message>
        <source>Adds a row with these values and prints 1. Numbers are read as they are shown, a checkbox is
Checked or Unchecked.

  --dry-run            stores nothing
</source>
        <translation>これらの値の行を加えて 1 を表示します。数は表示のとおりに読みます。チェックは
Checked か Unchecked です。

  --dry-run            何も保存しません
</translation>
    </message>
    <message>
        <source>Gives all rows that meet the conditions these values, or none of them if one cannot be
stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>条件に合うすべての行にこれらの値を入れ、その数を表示します。1 行でも保存できな
ければ、どの行も変えません。

  --dry-run            何も保存しません
</translation>
    </message>
    <message>
        <source>Counts all rows that meet the conditions up by +N or down by -N, or none of them if one
cannot be stored, and prints how many there are.

  --dry-run            stores nothing
</source>
        <translation>条件に合うすべての行の数量を +N 増やすか -N 減らし、その数を表示します。1 行で
も保存できなければ、どの行も変えません。

  --dry-run            何も保存しません
</translation>
    </message>
    <message>
        <source>Deletes all rows that meet the conditions, or none of them if one cannot be, and prints how
many there are.

  --dry-run            deletes nothing
</source>
        <translation>条件に合うすべての行を削除し、その数を表示します。1 行でも削除できなければ、ど
の行も削除しません。

  --dry-run            何も削除しません
</translation>
    </message>
    <message>
        <source>Gives a list another name and prints nothing.

  --dry-run            stores nothing
</source>
        <translation>リストに別の名前を付け、何も表示しません。

  --dry-run            何も保存しません
</translation>
    </message>
    <message>
        <source>Deletes a list with all its rows and prints how many these are.

  --dry-run            deletes nothing
</source>
        <translation>リストをすべての行ごと削除し、その数を表示します。

  --dry-run            何も削除しません
</translation>
    </message>
    <message>
        <source>Reads the whole data file. Prints &quot;ok&quot;, or what is wrong and exits with 1.
</source>
        <translation>データファイル全体を読みます。「ok」と表示するか、問題を表示して 1 で終わりま
す。
</translation>
    </message>
    <message>
        <source>Writes a consistent copy of the data file, also while it is in use. FILE must not exist.
</source>
        <translation>データファイルの整ったコピーを書きます。使用中でもかまいません。FILE があっては
いけません。
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
        <translation>設定されたデータファイルのリストか行を変えるたびに、実行の終わりにコピーを保管
します：最新の 3 つ、または設定の KeptCopies=0...9 の数だけで、全部で 32 MB
以内ならさらに古いものも残します。ファイルがなくなって 90 日たつと削除します。

オプションがなければ、コピーごとに 1 行を新しい順に表示します：番号 TAB 時刻
TAB バイト数。続けて、壊れていてもデータファイルから読み取れるリストごとに 1 行
を表示します：salvage TAB リスト TAB 行の数 TAB 失われたもの。オプションがあれ
ば新しいデータファイル FILE を作ります。FILE があってはいけません：

  --from N             コピー N から作ります
  --salvage            データファイルから読み取れるものから作り、それを表示しま
                       す。データファイルは読むだけです
  --json               コピーごと、リストごとに 1 つのオブジェクト
</translation>
    </message>
    <message>
        <source>none so far</source>
        <translation>まだありません</translation>
    </message>
    <message>
        <source>  --data FILE          works on another data file than the configured one (%1)

Here dates are written %2 and numbers %3, but in text files with a point and no
groups. Text files are written in UTF-16 behind a byte-order mark, and read in code page
%4 where there is none.
</source>
        <extracomment>%1 is the data file, %2 such as dd/MM/yyyy, %3 such as 1,234.50, %4 such as 1252.</extracomment>
        <translation>  --data FILE          設定されたものとは別のデータファイルを使います（%1）

ここでは日付は %2、数は %3 のように書きますが、テキストファイルでは小数点は点
で、桁区切りはありません。テキストファイルはバイト順マーク付きの UTF-16 で書
き、マークがなければコードページ %4 で読みます。
</translation>
    </message>
    <message>
        <source>
Opens the window, showing LIST if it is named. The commands work without it:

</source>
        <translation>
ウィンドウを開きます。LIST があればそれを表示します。次のコマンドはウィンドウな
しで動きます：

</translation>
    </message>
    <message>
        <source>
  --new-list           opens the window with the page of a new list
  --help               help, on a command if one is named
  --version            the version
</source>
        <translation>
  --new-list           新しいリストのページでウィンドウを開きます
  --help               ヘルプ。コマンドがあればその説明
  --version            バージョン
</translation>
    </message>
    <message>
        <source>
Exit status: 0 done, 1 failed, 2 wrong usage, 3 something is due.
</source>
        <translation>
終了コード：0 完了、1 失敗、2 使い方の誤り、3 対象あり。
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
        <translation>リストを印刷用か送信用に書きます：少ないものと期限切れに印を付けた行、集計、こ
れから 12 か月に期限が来るものと残りが少ないもののグラフ。FILE がないか - なら
標準出力に書きます。既にある FILE は置き換えます。

  --all                すべてのリストを 1 つにまとめます
  --format NAME        pdf、またはほかのファイルが要らない 1 ページの html。な
                       ければ FILE の名前の終わりによります。どちらもなければ
                       pdf
</translation>
    </message>
    <message>
        <source>Prints what merging OTHER, another device&apos;s copy of the data file, would do, as merge prints it.
Changes nothing. Exits with 3 if OTHER has something that the data file has not.

  --base FILE          what both come from, where no kept copy is
  --json               an object per line
</source>
        <translation>別の端末にあるデータファイルのコピー OTHER をまとめたときに起こることを、merge と同じ形で表示します。
何も変更しません。データファイルにないものが OTHER にあれば 3 で終わります。

  --base FILE          両方の元になったもの (保存されたコピーがないとき)
  --json               1 行に 1 つのオブジェクト
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
        <translation>データファイルと、別の端末にあるそのコピー OTHER を、データファイルにまとめます。OTHER は読むだけです。
来たもの、なくなったもの、両方で変更された値を 1 行ずつ表示します: 何 TAB リスト TAB 行 TAB 列 TAB 値
TAB もう一方の値。先に両方のファイルのコピーを保存します。

  --base FILE          両方の元になったもの (保存されたコピーがないとき)
  --dry-run            何も保存しません
  --json               1 行に 1 つのオブジェクト
</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>Enable row colour when count is less than or equal to</source>
        <translation>行に色を付ける数量（以下）</translation>
    </message>
    <message>
        <source>Enable row colour when expiry date is reached to colour</source>
        <translation>期限が来た行に付ける色</translation>
    </message>
    <message>
        <source>Display list using landscape mode</source>
        <translation>リストを横向きで表示</translation>
    </message>
    <message>
        <source>Landscape (right-handed)</source>
        <translation>横向き（右利き）</translation>
    </message>
    <message>
        <source>Landscape (left-handed)</source>
        <translation>横向き（左利き）</translation>
    </message>
    <message>
        <source>Use alternate row colour</source>
        <translation>1 行おきに色を付ける</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ</translation>
    </message>
</context>
<context>
    <name>DataFileOpener</name>
    <message>
        <source>The data file is damaged. There is a good copy of %1.

Do you want to go on with it? It is written to a new file; the damaged one stays as it is.</source>
        <translation>データファイルが壊れています。%1 の正常なコピーがあります。

それで続けますか？ 新しいファイルに書き込み、壊れたファイルはそのまま残します。</translation>
    </message>
    <message>
        <source>The new file could not be written. Error: %1</source>
        <translation>新しいファイルに書き込めませんでした。エラー：%1</translation>
    </message>
    <message>
        <source>Beside the data file lay the journal of another file. It is kept as %1.</source>
        <translation>データファイルの横に別のファイルのジャーナルがありました。%1 として保管しました。</translation>
    </message>
    <message>
        <source>Another program has written into the data file. What it holds now: %1, %2.

Do you want to go on with that? It is written to a new file; the old one stays as it is.</source>
        <translation>別のプログラムがデータファイルに書き込みました。今の内容：%1、%2。

それで続けますか？ 新しいファイルに書き込み、古いファイルはそのまま残します。</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file: %1, %2.

Do you want to go on with that? It is written to a new file; the damaged one stays as it is.</source>
        <translation>壊れたファイルから読み取れるもの：%1、%2。

それで続けますか？ 新しいファイルに書き込み、壊れたファイルはそのまま残します。</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s)</source>
        <translation>
            <numerusform>リスト %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Deletions</name>
    <message>
        <source>The list &apos;%1&apos; was deleted.</source>
        <translation>リスト「%1」を削除しました。</translation>
    </message>
    <message>
        <source>All rows of &apos;%1&apos; were deleted.</source>
        <translation>「%1」のすべての行を削除しました。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was deleted.</source>
        <translation>「%1」を削除しました。</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Welcome to Quillory</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Column Definition</source>
        <translation>列の定義</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Import Column Order</source>
        <translation>読み込む列の順序</translation>
    </message>
</context>
<context>
    <name>Icons</name>
    <message>
        <source>List</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>箱</translation>
    </message>
    <message>
        <source>Jar</source>
        <translation>びん</translation>
    </message>
    <message>
        <source>Refrigerator</source>
        <translation>冷蔵庫</translation>
    </message>
    <message>
        <source>Freezer</source>
        <translation>冷凍庫</translation>
    </message>
    <message>
        <source>Apple</source>
        <translation>りんご</translation>
    </message>
    <message>
        <source>Carrot</source>
        <translation>にんじん</translation>
    </message>
    <message>
        <source>Bread</source>
        <translation>パン</translation>
    </message>
    <message>
        <source>Meat</source>
        <translation>肉</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>魚</translation>
    </message>
    <message>
        <source>Milk</source>
        <translation>牛乳</translation>
    </message>
    <message>
        <source>Bottle</source>
        <translation>ボトル</translation>
    </message>
    <message>
        <source>Wine</source>
        <translation>ワイン</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>コーヒー</translation>
    </message>
    <message>
        <source>Baby bottle</source>
        <translation>哺乳びん</translation>
    </message>
    <message>
        <source>Pills</source>
        <translation>薬</translation>
    </message>
    <message>
        <source>First aid</source>
        <translation>救急箱</translation>
    </message>
    <message>
        <source>Cosmetics</source>
        <translation>化粧品</translation>
    </message>
    <message>
        <source>Cleaning spray</source>
        <translation>スプレー</translation>
    </message>
    <message>
        <source>Shirt</source>
        <translation>シャツ</translation>
    </message>
    <message>
        <source>Shoe</source>
        <translation>靴</translation>
    </message>
    <message>
        <source>Jewel</source>
        <translation>宝石</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>腕時計</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>硬貨</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>切手</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>本</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>映画</translation>
    </message>
    <message>
        <source>Game pad</source>
        <translation>ゲーム</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>パズル</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>パソコン</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>電話</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>電池</translation>
    </message>
    <message>
        <source>Plug</source>
        <translation>プラグ</translation>
    </message>
    <message>
        <source>Bulb</source>
        <translation>電球</translation>
    </message>
    <message>
        <source>Hammer</source>
        <translation>ハンマー</translation>
    </message>
    <message>
        <source>Screw</source>
        <translation>ねじ</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>塗料</translation>
    </message>
    <message>
        <source>Plant</source>
        <translation>植物</translation>
    </message>
    <message>
        <source>Paw</source>
        <translation>足跡</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>車</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>鍵</translation>
    </message>
</context>
<context>
    <name>ListDefinitions</name>
    <message>
        <source>Another device has deleted this list.</source>
        <translation>別のデバイスがこのリストを削除しました。</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>it is the data file itself</source>
        <translation>データファイルそのものです</translation>
    </message>
    <message>
        <source>it is the name of the data file&apos;s journal</source>
        <translation>データファイルのジャーナルの名前です</translation>
    </message>
</context>
<context>
    <name>ListTransfer</name>
    <message numerus="yes">
        <source>The import was cancelled. %n row(s) are in the list already.</source>
        <translation>
            <numerusform>読み込みを中止しました。%n 行はすでにリストにあります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates such as %1 were read in the form %2.</source>
        <extracomment>%1 is such as 10/05/2026, %2 such as dd/MM/yyyy.</extracomment>
        <translation>%1 のような日付は %2 の形で読み取りました。</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>ファイルに書き込めませんでした：%1</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are in the file. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>このリストは一部しか読み取れません。ファイルには %n 行あります。「quillory restore」でコピーと救えるものを確認できます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>List Properties...</source>
        <translation>プロパティ...</translation>
    </message>
    <message>
        <source>Rename List</source>
        <translation>リスト名を変更</translation>
    </message>
    <message>
        <source>Import List...</source>
        <translation>リストを読み込む...</translation>
    </message>
    <message>
        <source>Export List...</source>
        <translation>リストを書き出す...</translation>
    </message>
    <message>
        <source>Delete List...</source>
        <translation>リストを削除...</translation>
    </message>
    <message>
        <source>Delete All Records...</source>
        <translation>すべての行を削除...</translation>
    </message>
    <message>
        <source>Open Read Only</source>
        <translation>読み取り専用で開く</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Quillory について...</translation>
    </message>
    <message>
        <source>Add Expiry Date Column</source>
        <translation>期限の列を追加</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>Modify...</source>
        <translation>編集...</translation>
    </message>
    <message>
        <source>Create Copy</source>
        <translation>コピーを作成</translation>
    </message>
    <message>
        <source>View Summary...</source>
        <translation>集計を表示...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>検索...</translation>
    </message>
    <message>
        <source>Set Filters...</source>
        <translation>フィルターを設定...</translation>
    </message>
    <message>
        <source>Clear Filters</source>
        <translation>フィルターを解除</translation>
    </message>
    <message>
        <source>Add 1</source>
        <translation>1 増やす</translation>
    </message>
    <message>
        <source>Subtract 1</source>
        <translation>1 減らす</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>挿入</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Quillory::ColourGrid</name>
    <message>
        <source>Colours</source>
        <translation>色</translation>
    </message>
</context>
<context>
    <name>Quillory::ColumnsPanel</name>
    <message>
        <source>A new column goes before the selected one. Once the list is made its columns stay.</source>
        <translation>新しい列は選択した列の前に入ります。リストを作ったあとは列を変えられません。</translation>
    </message>
</context>
<context>
    <name>Quillory::DataFileSession</name>
    <message>
        <source>The change could not be saved. Error: %1

Tap Retry to open the data file again.</source>
        <translation>変更を保存できませんでした。エラー：%1

「再試行」でデータファイルを開き直します。</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. The old one is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>データファイルの場所に別のファイルが置かれました。古いほうはコピーとして保管しました。「quillory restore」でコピーを確認できます。</translation>
    </message>
    <message>
        <source>Another file was put in the place of the data file. No copy could be kept of the old one.</source>
        <translation>データファイルの場所に別のファイルが置かれました。古いほうのコピーは保管できませんでした。</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. What it held is kept as a copy; &quot;quillory restore&quot; lists the copies.</source>
        <translation>データファイルが元の場所にありません。内容はコピーとして保管しました。「quillory restore」でコピーを確認できます。</translation>
    </message>
    <message>
        <source>The data file is no longer in its place. No copy could be kept of it.</source>
        <translation>データファイルが元の場所にありません。コピーは保管できませんでした。</translation>
    </message>
    <message>
        <source>No copy of the data file could be kept. Error: %1</source>
        <translation>データファイルのコピーを保管できませんでした。エラー：%1</translation>
    </message>
</context>
<context>
    <name>Quillory::DateField</name>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>日付なし</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>Typed in place of a date, in small letters.</extracomment>
        <translation>今日</translation>
    </message>
    <message>
        <source>not a date</source>
        <translation>日付ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date. Type it as in %2, or pick it from the calendar.</source>
        <translation>「%1」は日付ではありません。%2 のように入力するか、カレンダーから選んでください。</translation>
    </message>
</context>
<context>
    <name>Quillory::DeviceMerge</name>
    <message>
        <source>Another device has changed the lists, and so have you. Do you want to bring both together?</source>
        <translation>別の端末がリストを変更し、こちらでも変更しています。両方をまとめますか?</translation>
    </message>
    <message>
        <source>Beside the data file lies another device&apos;s version, &quot;%1&quot;. Do you want to bring both together?</source>
        <translation>データファイルの隣に別の端末の版「%1」があります。両方をまとめますか?</translation>
    </message>
    <message>
        <source>The two versions could not be brought together; both are as they were. Error: %1</source>
        <translation>2つの版をまとめられませんでした。どちらも元のままです。エラー: %1</translation>
    </message>
</context>
<context>
    <name>Quillory::FilterBar</name>
    <message>
        <source>Clear</source>
        <translation>解除</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%2 行中 %1 行</translation>
    </message>
</context>
<context>
    <name>Quillory::FiltersPage</name>
    <message>
        <source>No filters yet. Tap Add to make one.</source>
        <translation>フィルターはまだありません。「追加」で作ります。</translation>
    </message>
</context>
<context>
    <name>Quillory::GeneralPanel</name>
    <message>
        <source>Icon</source>
        <translation>アイコン</translation>
    </message>
</context>
<context>
    <name>Quillory::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
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
        <translation>リストはまだありません。「新規」で作ります。</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGrid</name>
    <message>
        <source>Icons</source>
        <translation>アイコン</translation>
    </message>
</context>
<context>
    <name>Quillory::IconGridPage</name>
    <message>
        <source>Icon</source>
        <translation>アイコン</translation>
    </message>
</context>
<context>
    <name>Quillory::IconPicker</name>
    <message>
        <source>Next icon</source>
        <translation>次のアイコン</translation>
    </message>
    <message>
        <source>Previous icon</source>
        <translation>前のアイコン</translation>
    </message>
    <message>
        <source>All icons</source>
        <translation>すべてのアイコン</translation>
    </message>
</context>
<context>
    <name>Quillory::MainFrame</name>
    <message>
        <source>Choose a list to see its rows.</source>
        <translation>リストを選ぶと行が表示されます。</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Some lists cannot be read. Error: %1</source>
        <translation>読み取れないリストがあります。エラー：%1</translation>
    </message>
    <message>
        <source>Updated from another device</source>
        <translation>別の端末の内容に更新しました</translation>
    </message>
</context>
<context>
    <name>Quillory::MenuKey</name>
    <message>
        <source>opens a menu</source>
        <translation>メニューを開きます</translation>
    </message>
</context>
<context>
    <name>Quillory::MergePage</name>
    <message>
        <source>name of the list</source>
        <translation>リストの名前</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>warning of counts</source>
        <translation>数量の警告</translation>
    </message>
    <message>
        <source>warning of expiry</source>
        <translation>期限の警告</translation>
    </message>
    <message>
        <source>count to warn at</source>
        <translation>警告する数量</translation>
    </message>
    <message>
        <source>colour of counts</source>
        <translation>数量の色</translation>
    </message>
    <message>
        <source>colour of expiry</source>
        <translation>期限の色</translation>
    </message>
    <message>
        <source>The list came from the other device.</source>
        <translation>このリストは別の端末から来ました。</translation>
    </message>
    <message>
        <source>The list was deleted on the other device.</source>
        <translation>このリストは別の端末で削除されました。</translation>
    </message>
    <message>
        <source>The list was deleted here and changed on the other device: it is back.</source>
        <translation>このリストはここで削除され、別の端末で変更されたため、戻りました。</translation>
    </message>
    <message>
        <source>The list was deleted on the other device and changed here: it stays.</source>
        <translation>このリストは別の端末で削除され、ここで変更されたため、残ります。</translation>
    </message>
    <message>
        <source>Both devices had made this list: it is one now.</source>
        <translation>両方の端末で作られたリストです。1つになりました。</translation>
    </message>
    <message>
        <source>%1: came from the other device.</source>
        <translation>%1: 別の端末から来ました。</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device.</source>
        <translation>%1: 別の端末で削除されました。</translation>
    </message>
    <message>
        <source>%1: was deleted here and changed on the other device, and is back.</source>
        <translation>%1: ここで削除され、別の端末で変更されたため、戻りました。</translation>
    </message>
    <message>
        <source>%1: was deleted on the other device and changed here, and stays.</source>
        <translation>%1: 別の端末で削除され、ここで変更されたため、残ります。</translation>
    </message>
    <message>
        <source>%1: a copy of the row has the other values.</source>
        <translation>%1: 行のコピーにもう一方の値があります。</translation>
    </message>
    <message>
        <source>%1: %2 came in the place of %3.</source>
        <extracomment>Such as &quot;Tea, Quantity: 5 came in the place of 3.&quot;</extracomment>
        <translation>%1: %3の代わりに%2になりました。</translation>
    </message>
    <message>
        <source>%1: both devices had changed it. It is %2; the other was %3.</source>
        <translation>%1: 両方の端末で変更されました。%2になり、もう一方は%3でした。</translation>
    </message>
    <message>
        <source>%1: both devices had counted. It is %2; the other was %3.</source>
        <translation>%1: 両方の端末で数えられました。%2になり、もう一方は%3でした。</translation>
    </message>
    <message>
        <source>%1: both devices had counted beyond the limit. It is %2; the other was %3.</source>
        <translation>%1: 両方の端末で限度を超えて数えられました。%2になり、もう一方は%3でした。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A row&apos;s name and that of a column.</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>In the place of a value that is not there.</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Brought together</source>
        <translation>まとめました</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>ほか %n 件。</numerusform>
        </translation>
    </message>
    <message>
        <source>What both come from was not known any more. So nothing was deleted, and counts that both had changed were not added up.</source>
        <translation>両方の元になった版がもう分かりませんでした。そのため何も削除されず、両方で変更された数量は合計されていません。</translation>
    </message>
</context>
<context>
    <name>Quillory::OptionsPanel</name>
    <message>
        <source>Only lists with an expiry date column can warn of dates.</source>
        <translation>期限の列があるリストだけが期限を知らせます。</translation>
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
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Do you want to discard what you have entered?</source>
        <translation>入力した内容を破棄しますか？</translation>
    </message>
</context>
<context>
    <name>Quillory::RowsView</name>
    <message>
        <source>read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are shown. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>このリストは一部しか読み取れません。%n 行を表示しています。「quillory restore」でコピーと救えるものを確認できます。</numerusform>
        </translation>
    </message>
    <message>
        <source>No row meets the filters.</source>
        <translation>フィルターに合う行がありません。</translation>
    </message>
    <message>
        <source>This list has no rows.</source>
        <translation>このリストには行がありません。</translation>
    </message>
    <message>
        <source>No rows yet. Tap New to add one.</source>
        <translation>行はまだありません。「新規」で追加します。</translation>
    </message>
    <message>
        <source>This list can be read only in part, so nothing is summed up. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>このリストは一部しか読み取れないため、集計しません。「quillory restore」でコピーと救えるものを確認できます。</translation>
    </message>
</context>
<context>
    <name>Quillory::SummaryPage</name>
    <message>
        <source>Totals</source>
        <translation>集計</translation>
    </message>
</context>
<context>
    <name>Quillory::ThresholdEdit</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>The least and the greatest number that can be typed.</extracomment>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>減らす</translation>
    </message>
    <message>
        <source>More</source>
        <translation>増やす</translation>
    </message>
</context>
<context>
    <name>Quillory::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>past</source>
        <extracomment>The first bar of a drawing of months: what is expired already.</extracomment>
        <translation>期限切れ</translation>
    </message>
    <message>
        <source>What expires in the next twelve months</source>
        <translation>これから 12 か月に期限が来るもの</translation>
    </message>
    <message>
        <source>Of what fewest are left, beside the threshold</source>
        <translation>残りが少ないもの（線は基準の数）</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>集計</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n 行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Strings</name>
    <message>
        <source>Inventory List</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Do you want to delete the selected row?</source>
        <translation>選択した行を削除しますか？</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>New Inventory List</source>
        <translation>新しいリスト</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Please specifiy a name. Empty name is not allowed.</source>
        <translation>名前を入力してください。</translation>
    </message>
    <message>
        <source>Do you want to delete all rows in list &apos;%s&apos;?</source>
        <translation>リスト「%s」のすべての行を削除しますか？</translation>
    </message>
    <message>
        <source>Do you want to delete list &apos;%s&apos; and all its data?</source>
        <translation>リスト「%s」を中身ごと削除しますか？</translation>
    </message>
    <message>
        <source>Inventory List Options</source>
        <translation>リストのプロパティ</translation>
    </message>
    <message>
        <source>Quillory is unable to open the data file. Please make sure the storage card is inserted.</source>
        <translation>データファイルを開けません。メモリーカードが入っているか確認してください。</translation>
    </message>
    <message>
        <source>The data file cannot be found. Do you want to create a new data file at the same location? Tap No to try to locate it again.</source>
        <translation>データファイルが見つかりません。同じ場所に新しく作りますか？「いいえ」でもう一度探します。</translation>
    </message>
    <message>
        <source>No record matched the criteria.</source>
        <translation>条件に合う行はありませんでした。</translation>
    </message>
    <message>
        <source>Import is completed with errors. Data may not be imported properly.</source>
        <translation>読み込みはエラーで終わりました。データが欠けている可能性があります。</translation>
    </message>
    <message>
        <source>String</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Checkbox</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>価格</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Expiry Date</source>
        <translation>期限</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>contains</source>
        <extracomment>The conditions stand between a column and a value: Price &quot;greater than&quot; 3.50.</extracomment>
        <translation>次を含む</translation>
    </message>
    <message>
        <source>equals to</source>
        <translation>次と等しい</translation>
    </message>
    <message>
        <source>not equals to</source>
        <translation>次と等しくない</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>次より大きい</translation>
    </message>
    <message>
        <source>greater than or equals to</source>
        <translation>次以上</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>次より小さい</translation>
    </message>
    <message>
        <source>less than or equals to</source>
        <translation>次以下</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>These stand before a date: Opened &quot;on or after&quot; 10 May.</extracomment>
        <translation>次の日</translation>
    </message>
    <message>
        <source>not on</source>
        <translation>次の日以外</translation>
    </message>
    <message>
        <source>after</source>
        <translation>次の日より後</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>次の日以降</translation>
    </message>
    <message>
        <source>before</source>
        <translation>次の日より前</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>次の日以前</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Unable to create list table!</source>
        <translation>リストの表を作れません。</translation>
    </message>
    <message>
        <source>Unable to create user database!</source>
        <translation>データベースを作れません。</translation>
    </message>
    <message>
        <source>Unable to create inventory table!</source>
        <translation>リストの行の表を作れません。</translation>
    </message>
    <message>
        <source>Unable to open data file. Error: %d</source>
        <translation>データファイルを開けません。エラー：%d</translation>
    </message>
    <message>
        <source>Out of memory!</source>
        <translation>メモリーが足りません。</translation>
    </message>
    <message>
        <source>To begin using Quillory, please choose a name and location to store all your inventory lists. Tap OK to continue.</source>
        <translation>はじめに、すべてのリストを入れるファイルの名前と場所を選びます。OK で進みます。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>to colour</source>
        <extracomment>Stands between a number and a colour: &quot;Enable row colour when count is less than or equal to&quot; 3 &quot;to colour&quot; red.</extracomment>
        <translation>行の色</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>項目：</translation>
    </message>
    <message>
        <source>Condition:</source>
        <translation>条件：</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>値：</translation>
    </message>
    <message>
        <source>Inventory Database</source>
        <translation>Quillory データ</translation>
    </message>
    <message>
        <source>Text Files</source>
        <translation>テキストファイル</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>low</source>
        <extracomment>Beside the name of a row of which few are left; short.</extracomment>
        <translation>残りわずか</translation>
    </message>
    <message>
        <source>expired</source>
        <extracomment>Beside the name of a row whose expiry date is reached; short.</extracomment>
        <translation>期限切れ</translation>
    </message>
</context>
</TS>
