# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Completes quillory in bash. Commands and options are those that the program's own help tells of,
# lists and columns those of the data file that the line names, or else of the configured one.

_quillory_ask() { command quillory "$@" "${data[@]}" 2>/dev/null; }

# Offers the lines of standard input that begin as the word does.
_quillory_offer() {
    local line word=$cur
    [[ $word == [\"\']* ]] && word=${word:1} || word=${word//\\/}
    while IFS= read -r line; do
        [[ $line == "$word"* ]] || continue
        [[ $cur == [\"\']* ]] || printf -v line '%q' "$line"
        COMPREPLY+=("$line")
    done
}

# _quillory_columns LIST: the first line that `show` prints.
_quillory_columns() { _quillory_ask show "$1" | head -n 1 | tr '\t' '\n'; }

_quillory() {
    local cur=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local words=() data=() i
    COMPREPLY=()
    for ((i = 1; i < COMP_CWORD; ++i)); do
        local word=${COMP_WORDS[i]}
        case $word in
            --data)
                ((i + 1 < COMP_CWORD)) || break
                word=${COMP_WORDS[++i]}
                data=(--data "${word/#\~\//$HOME/}")
                ;;
            --all | --base | --column | --columns | --dates | --encoding | --format | --from | --icon | --match | --sort \
                | --warn-count | --where | --within) ((++i)) ;;
            -*) ;;
            *)
                # As the shell would pass it on, without what it may run.
                word=${word#[\"\']} word=${word%[\"\']}
                words+=("${word//\\/}")
                ;;
        esac
    done
    local command=${words[0]:-}
    case $previous in
        --all | --base | --data)
            compopt -o default
            return
            ;;
        --sort | --columns | --match | --where)
            _quillory_offer < <(_quillory_columns "${words[1]:-}")
            return
            ;;
        --encoding)
            _quillory_offer <<<$'utf-8\nutf-16'
            return
            ;;
        --dates)
            _quillory_offer <<<iso
            return
            ;;
        --format)
            local formats=$'csv\ntsv\njson\nhtml'
            [[ $command != report ]] || formats=$'pdf\nhtml'
            _quillory_offer <<<"$formats"
            return
            ;;
        --from)
            _quillory_offer < <(_quillory_ask restore | grep -oE '^[0-9]+')
            return
            ;;
        --column | --icon | --warn-count | --within) return ;;
    esac
    if [[ $cur == -* ]]; then
        local of=()
        [[ -z $command ]] || of=("$command")
        _quillory_offer < <(command quillory "${of[@]}" --help | grep -oE '^  --[a-z-]+' | tr -d ' ')
        return
    fi
    case $command:${#words[@]} in
        :0)
            _quillory_offer < <(command quillory --help | sed -n 's/^  quillory \([a-z]*\).*/\1/p'
                _quillory_ask lists | cut -f 1)
            ;;
        report:1 | show:1 | export:1 | import:1 | summary:1 | add:1 | set:1 | count:1 | delete:1 | rename:1 | remove:1) _quillory_offer < <(_quillory_ask lists | cut -f 1) ;;
        export:2 | import:2 | report:2 | backup:1 | diff:1 | merge:1 | restore:1) compopt -o default ;;
    esac
}
complete -F _quillory quillory
