# Sourced by the measurements.
claim() { # WHAT FIGURE AIM: a row of the table of bench/run.sh
    printf '| %s | %s | %s |\n' "$@" | tee -a "${CLAIMS:-/dev/null}"
}
