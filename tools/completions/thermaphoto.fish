# Completion of thermaphoto in fish.

complete -c thermaphoto -f
complete -c thermaphoto -n __fish_use_subcommand -a info -d 'Tell what stands in photographs'
complete -c thermaphoto -n __fish_use_subcommand -a export -d 'Write temperatures or pictures'
complete -c thermaphoto -n __fish_use_subcommand -a measure -d 'Measure photographs with the same tools'
complete -c thermaphoto -n __fish_use_subcommand -a report -d 'Write a PDF report of each photograph'
complete -c thermaphoto -n __fish_use_subcommand -a help -d 'Show the commands, or all options of one'
complete -c thermaphoto -n __fish_use_subcommand -s v -l version -d 'Show the version'
complete -c thermaphoto -s h -l help -d 'Show all options'
complete -c thermaphoto -n '__fish_seen_subcommand_from help' -a 'info export measure report'

set -l each '__fish_seen_subcommand_from info export measure report'
complete -c thermaphoto -n $each -l layout -x -a 'auto 0 1' -d 'File layout'
complete -c thermaphoto -n $each -s r -l recursive -d 'Take the sub-folders of folders, too'
complete -c thermaphoto -n $each -s j -l jobs -x -d 'Photographs worked on at the same time'
complete -c thermaphoto -n $each -a '(__fish_complete_suffix .bmp)'

complete -c thermaphoto -n '__fish_seen_subcommand_from info' -l json -d 'Print a JSON array of objects'

set -l export '__fish_seen_subcommand_from export'
complete -c thermaphoto -n $export -l format -x -a 'csv tiff npy png' -d 'Kind of file'
complete -c thermaphoto -n $export -l unit -x -a 'C F file' -d 'Unit of the temperatures'
complete -c thermaphoto -n $export -l separator -x -a tab -d 'csv: what stands between two numbers'
complete -c thermaphoto -n $export -l decimals -x -d 'csv: digits behind the point'
complete -c thermaphoto -n $export -l header -d 'csv: begin with a line that names unit and size'
complete -c thermaphoto -n $export -l span -x -d 'png: the two values of the colour bar'

complete -c thermaphoto -n '__fish_seen_subcommand_from measure' -l format -x -a 'csv json table' -d 'How to print'
complete -c thermaphoto -n '__fish_seen_subcommand_from report' -l language -x -a 'CH EN RU KO' -d 'Language of the report'

set -l measuring '__fish_seen_subcommand_from measure report'
complete -c thermaphoto -n $measuring -l tools -r -k -a '(__fish_complete_suffix .json)' -d 'What to measure'
complete -c thermaphoto -n $measuring -l unit -x -a 'C F' -d 'Unit of the temperatures'

set -l writing '__fish_seen_subcommand_from export report'
complete -c thermaphoto -n $writing -s o -l output -x -a '(__fish_complete_directories)' -d 'The folder to write to'
complete -c thermaphoto -n $writing -s f -l force -d 'Replace files that are there already'
complete -c thermaphoto -n $writing -l skip-existing -d 'Pass over photographs whose files are there already'
