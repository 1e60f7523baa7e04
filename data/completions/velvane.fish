# fish completion for velvane(1)

set -l commands new inspect state frame export convert run record doctor

function __velvane_demos
    __fish_complete_suffix .velvane
end

complete -c velvane -f
complete -c velvane -s h -l help -d 'Explain the program or the subcommand'
complete -c velvane -n "not __fish_seen_subcommand_from $commands" -l version -d 'Print the version'
complete -c velvane -n "not __fish_seen_subcommand_from $commands" -l lang -x -a 'en de fr es ja zh_CN' -d 'The language of all texts'
complete -c velvane -n "not __fish_seen_subcommand_from $commands" -l new-instance -d 'Open in a process of its own'
complete -c velvane -n "not __fish_seen_subcommand_from export convert doctor" -a '(__velvane_demos)'
complete -c velvane -n "__fish_seen_subcommand_from export convert" -F

complete -c velvane -n __fish_use_subcommand -a new -d 'Write a new demo with the defaults'
complete -c velvane -n __fish_use_subcommand -a inspect -d 'Show what a demo holds'
complete -c velvane -n __fish_use_subcommand -a state -d 'What a demo shows at moments, as JSON'
complete -c velvane -n __fish_use_subcommand -a frame -d 'Render one moment to a picture'
complete -c velvane -n __fish_use_subcommand -a export -d 'Render a demo to a movie'
complete -c velvane -n __fish_use_subcommand -a convert -d 'Write a demo in the binary format'
complete -c velvane -n __fish_use_subcommand -a run -d 'Perform a demo on the real desktop'
complete -c velvane -n __fish_use_subcommand -a record -d 'Record real actions into a demo'
complete -c velvane -n __fish_use_subcommand -a doctor -d 'What this session can and cannot do'

complete -c velvane -n "__fish_seen_subcommand_from new" -l force -d 'Replace the file if it exists'
complete -c velvane -n "__fish_seen_subcommand_from export" -l verbose -d 'Say why it fails'
complete -c velvane -n "__fish_seen_subcommand_from inspect doctor" -l json -d 'Print JSON'
complete -c velvane -n "__fish_seen_subcommand_from state frame" -l at -x -d 'A moment in seconds'
complete -c velvane -n "__fish_seen_subcommand_from state" -l video-duration -x -d 'Length of the movie in seconds'
complete -c velvane -n "__fish_seen_subcommand_from frame" -s o -l output -r -F -d 'The picture to write'
complete -c velvane -n "__fish_seen_subcommand_from frame" -l size -x -d 'Largest width and height in pixels'
complete -c velvane -n "__fish_seen_subcommand_from run" -l from -x -d 'Begin with this step'
complete -c velvane -n "__fish_seen_subcommand_from run" -l hide-others -d 'Hide all other applications'
complete -c velvane -n "__fish_seen_subcommand_from run" -l record -x -a 'off screen window' -d 'What to record'
complete -c velvane -n "__fish_seen_subcommand_from run" -l no-cursor -d 'Leave the pointer out'
complete -c velvane -n "__fish_seen_subcommand_from run" -l no-countdown -d 'Begin at once'
