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
    --select)
        [[ ${COMP_WORDS[1]} == image ]] && return
        mapfile -t COMPREPLY < <(compgen -W "all none active normal" -- "$word")
        return
        ;;
    --export | --output-dir) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
    --picture | --output) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
    --host-version) mapfile -t COMPREPLY < <(compgen -W "4.0 5.0 6.0" -- "$word"); return ;;
    --brightness | --saturation | --hue | --quality | --save-as | --title | --page) return ;;
    esac
    options=--help
    case ${COMP_WORDS[1]} in
    theme) options+=" --theme" ;;
    image) options+=" --page --select" ;;
    list) options+=" --theme --json" ;;
    recolor)
        options+=" --theme --select --brightness --saturation --hue --quality --apply --undo --redo --reset"
        options+=" --picture --json --dry-run --export --save --save-as --title --apply-to-web --apply-to-pages"
        options+=" --output --output-dir --in-place --force"
        ;;
    apply) options+=" --theme --in-place-of --overwrite" ;;
    *) options+=" --version --host-version" ;;
    esac
    if [[ $COMP_CWORD -eq 1 ]]; then
        mapfile -t COMPREPLY < <(compgen -W "theme image list recolor apply $options" -- "$word")
    elif [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    else
        local kind=-d
        if [[ ${COMP_WORDS[1]} == image || ${COMP_WORDS[1]} == recolor ]]; then kind=-f; fi
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen "$kind" -- "$word")
    fi
}

complete -F _morpho morpho
