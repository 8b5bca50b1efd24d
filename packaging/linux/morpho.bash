# Completion of morpho's commands and options for bash.

# The folder names under _themes/ of the web that the command line names.
_morpho_themes() {
    local word folder
    for word in "${COMP_WORDS[@]:2}"; do
        for folder in "${word/#\~/$HOME}"/_themes/*/; do
            if [[ -d $folder ]]; then basename "$folder"; fi
        done
    done
}

_morpho() {
    local word=${COMP_WORDS[COMP_CWORD]} options
    COMPREPLY=()
    case ${COMP_WORDS[COMP_CWORD - 1]} in
    --theme | --in-place-of) mapfile -t COMPREPLY < <(compgen -W "$(_morpho_themes)" -- "$word"); return ;;
    --select) mapfile -t COMPREPLY < <(compgen -W "all none active normal" -- "$word"); return ;;
    --export) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
    --picture) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
    --host-version) mapfile -t COMPREPLY < <(compgen -W "4.0 5.0 6.0" -- "$word"); return ;;
    --brightness | --saturation | --hue | --quality | --save-as | --title) return ;;
    esac
    options=--help
    case ${COMP_WORDS[1]} in
    theme) options+=" --theme" ;;
    list) options+=" --theme --json" ;;
    recolor)
        options+=" --theme --select --brightness --saturation --hue --quality --apply --undo --redo --reset"
        options+=" --picture --json --dry-run --export --save --save-as --title --apply-to-web --apply-to-pages"
        ;;
    apply) options+=" --theme --in-place-of --overwrite" ;;
    *) options+=" --version --host-version" ;;
    esac
    if [[ $COMP_CWORD -eq 1 ]]; then
        mapfile -t COMPREPLY < <(compgen -W "theme list recolor apply $options" -- "$word")
    elif [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
    fi
}

complete -F _morpho morpho
