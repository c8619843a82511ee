# SPDX-License-Identifier: MIT
# Completes quillory in fish. Commands and options are those that the program's own help tells of,
# lists and columns those of the data file that the line names, or else of the configured one.

# The words of the line that are neither options nor their values.
function __quillory_words
    set -l skip 0
    for word in (commandline -opc)[2..-1]
        if test $skip = 1
            set skip 0
        else if string match -qr -- '^--(all|base|data|column|columns|encoding|format|from|icon|match|sort|warn-count|where|within)$' $word
            set skip 1
        else if not string match -q -- '-*' $word
            echo $word
        end
    end
end

# Asks the program, of the data file that the line names.
function __quillory_ask
    set -l line (commandline -opc)
    set -l place (contains -i -- --data $line)
    and set -q line[(math $place + 1)]
    and set -a argv --data (string replace -r '^~/' "$HOME/" -- $line[(math $place + 1)])
    command quillory $argv 2>/dev/null
end

function __quillory_commands
    command quillory --help | string replace -rf '^  quillory (\w+).*' '$1'
end

function __quillory_lists
    __quillory_ask lists | string replace -r '\t(\d+)$' '\t$1 rows'
end

# The first line that `show` prints.
function __quillory_columns
    __quillory_ask show (__quillory_words)[2] | head -n 1 | string split \t
end

function __quillory_options
    set -l command (__quillory_words)[1]
    if contains -- "$command" (__quillory_commands)
        command quillory $command --help
    else
        command quillory --help
    end | string replace -rf '^  (--[a-z-]+)[^ ]* (?:[A-Z:"\S]+ )? *(.*)' '$1\t$2'
end

function __quillory_after
    set -l line (commandline -opc)
    contains -- "$line[-1]" $argv
end

function __quillory_wants
    # COUNT COMMAND...: so many words stand before the cursor, the first of them one of these.
    set -l words (__quillory_words)
    test (count $words) = $argv[1]; and contains -- "$words[1]" $argv[2..-1]
end

complete -c quillory -f
complete -c quillory -n '__quillory_after --all --base --data' -F
complete -c quillory -n '__quillory_after --sort --columns --match --where' -a '(__quillory_columns)'
complete -c quillory -n '__quillory_after --encoding' -a 'utf-8 utf-16'
complete -c quillory -n '__quillory_after --dates' -a iso
complete -c quillory -n '__quillory_after --format; and contains -- report (__quillory_words)' -a 'pdf html'
complete -c quillory -n '__quillory_after --format; and not contains -- report (__quillory_words)' -a 'csv tsv json html'
complete -c quillory -n 'string match -q -- "-*" (commandline -ct)' -a '(__quillory_options)'
set -l value --all --base --data --dates --format --match --sort --columns --where --encoding --column --icon --warn-count --within --from
complete -c quillory -n "not __quillory_after $value; and test (count (__quillory_words)) = 0" \
    -a '(__quillory_commands) (__quillory_lists)'
complete -c quillory -n "not __quillory_after $value; and __quillory_wants 1 report show export import summary add set count delete rename remove" \
    -a '(__quillory_lists)'
complete -c quillory -n "not __quillory_after $value; and __quillory_wants 2 export import report" -F
complete -c quillory -n "not __quillory_after $value; and __quillory_wants 1 backup diff merge restore" -F
