# fish completion for kelvanectl

# The values of one key in a list that kelvanectl prints as JSON, one a line.
function __kelvanectl_values
    kelvanectl $argv[1] --json 2>/dev/null | string match -rg "\"$argv[2]\" *: *\"([^\"]*)\""
end

complete -c kelvanectl -f
complete -c kelvanectl -l json -d 'Print one JSON document'
complete -c kelvanectl -n __fish_use_subcommand -l help -d 'Print a summary'
complete -c kelvanectl -n __fish_use_subcommand -l version -d 'Print the version'

complete -c kelvanectl -n __fish_use_subcommand -a status -d 'Read the Dock, rank and propose'
complete -c kelvanectl -n __fish_use_subcommand -a plan -d 'What applying a profile would make of the Dock'
complete -c kelvanectl -n __fish_use_subcommand -a apply -d 'Bring the Dock in line with a profile'
complete -c kelvanectl -n __fish_use_subcommand -a restore -d 'Bring back an earlier Dock'
complete -c kelvanectl -n __fish_use_subcommand -a rank -d 'The most used applications'
complete -c kelvanectl -n __fish_use_subcommand -a profiles -d 'List the profiles'
complete -c kelvanectl -n __fish_use_subcommand -a snapshots -d 'List the saved Docks'
complete -c kelvanectl -n __fish_use_subcommand -a apps -d 'List the installed applications'
complete -c kelvanectl -n __fish_use_subcommand -a track -d 'Count usage, or stop counting'
complete -c kelvanectl -n __fish_use_subcommand -a auto -d 'How often the Dock is reorganized by itself'
complete -c kelvanectl -n __fish_use_subcommand -a resume -d 'End the pause of automatic updates'

complete -c kelvanectl -n '__fish_seen_subcommand_from plan apply' -a '(__kelvanectl_values profiles name)'
complete -c kelvanectl -n '__fish_seen_subcommand_from restore' -l original -d 'The Dock before Kelvane'
complete -c kelvanectl -n '__fish_seen_subcommand_from restore' -l snapshot -x -a '(__kelvanectl_values snapshots id)'
complete -c kelvanectl -n '__fish_seen_subcommand_from rank' -l window -x -a 'week month'
complete -c kelvanectl -n '__fish_seen_subcommand_from track' -a 'on off'
complete -c kelvanectl -n '__fish_seen_subcommand_from auto' -a 'off hourly every4Hours daily'
