# bash completion for kelvanectl

# The values of one key in a list that kelvanectl prints as JSON, one a line.
_kelvanectl_values() {
    kelvanectl "$1" --json 2>/dev/null | grep -o "\"$2\" *: *\"[^\"]*\"" | sed 's/^[^:]*: *"//; s/"$//'
}

# Offers the lines of its input that begin with the word, each as one word of the shell.
_kelvanectl_offer() {
    local word=$1 line
    while IFS= read -r line; do
        if [[ $line == "$word"* ]]; then
            COMPREPLY+=("$(printf '%q' "$line")")
        fi
    done
}

_kelvanectl() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command="" at
    COMPREPLY=()
    for ((at = 1; at < COMP_CWORD; at++)); do
        if [[ ${COMP_WORDS[at]} != -* ]]; then
            command=${COMP_WORDS[at]}
            break
        fi
    done
    case $previous in
    --window) _kelvanectl_offer "$word" < <(printf '%s\n' week month) && return ;;
    --snapshot) _kelvanectl_offer "$word" < <(_kelvanectl_values snapshots id) && return ;;
    esac
    if [[ $word == -* || ($command == restore && -z $word) ]]; then
        case $command in
        "") _kelvanectl_offer "$word" < <(printf '%s\n' --help --json --version) ;;
        restore) _kelvanectl_offer "$word" < <(printf '%s\n' --json --original --snapshot) ;;
        rank) _kelvanectl_offer "$word" < <(printf '%s\n' --json --window) ;;
        *) _kelvanectl_offer "$word" < <(printf '%s\n' --json) ;;
        esac
        return
    fi
    case $command in
    "") _kelvanectl_offer "$word" < <(printf '%s\n' apply apps auto plan profiles rank restore resume snapshots status track) ;;
    plan | apply) _kelvanectl_offer "$word" < <(_kelvanectl_values profiles name) ;;
    track) _kelvanectl_offer "$word" < <(printf '%s\n' on off) ;;
    auto) _kelvanectl_offer "$word" < <(printf '%s\n' off hourly every4Hours daily) ;;
    esac
}

complete -F _kelvanectl kelvanectl
