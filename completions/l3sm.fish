# Completion of l3sm for fish. The program itself knows what can follow: verbs, options, tables, fields, controls, paths,
# attributes, toggles, facilities, chips.
#
# Put it into a folder of $fish_complete_path, as /usr/share/fish/vendor_completions.d.

function __l3sm_complete
    set -l words (commandline -opc) (commandline -ct)
    for answer in ($words[1] complete -- $words 2>/dev/null)
        switch $answer
            case ':files'
                __fish_complete_path (commandline -ct)
            case ':open'
            case '*'
                echo $answer
        end
    end
end

complete -c l3sm -f -a '(__l3sm_complete)'
