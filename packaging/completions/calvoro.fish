# Completion of calvoro for fish.
# Made by packaging/pages/make.py from what the program says of itself.

complete -c calvoro -f
complete -c calvoro -s h -l help -d 'print a short help'
complete -c calvoro -s V -l version -d 'print the version'
complete -c calvoro -o display -x -d 'an option of the toolkit'
complete -c calvoro -o geometry -x -d 'an option of the toolkit'
complete -c calvoro -o icon -x -d 'an option of the toolkit'
complete -c calvoro -o name -x -d 'an option of the toolkit'
complete -c calvoro -o platform -x -d 'an option of the toolkit'
complete -c calvoro -o platformpluginpath -x -d 'an option of the toolkit'
complete -c calvoro -o platformtheme -x -d 'an option of the toolkit'
complete -c calvoro -o plugin -x -d 'an option of the toolkit'
complete -c calvoro -o qwindowgeometry -x -d 'an option of the toolkit'
complete -c calvoro -o qwindowicon -x -d 'an option of the toolkit'
complete -c calvoro -o qwindowtitle -x -d 'an option of the toolkit'
complete -c calvoro -o session -x -d 'an option of the toolkit'
complete -c calvoro -o style -x -d 'an option of the toolkit'
complete -c calvoro -o stylesheet -x -d 'an option of the toolkit'
complete -c calvoro -o title -x -d 'an option of the toolkit'
complete -c calvoro -o nograb -d 'an option of the toolkit'
complete -c calvoro -o reverse -d 'an option of the toolkit'
complete -c calvoro -o sync -d 'an option of the toolkit'
