# fish completion for styleprops. The program itself knows what may be typed; this hands its answers to the shell.

function __styleprops_complete
    set -l words (commandline -opc)
    set -l current (commandline -ct)
    for line in ($words[1] complete $words[2..-1] "$current" 2>/dev/null)
        switch $line
            case ':folders'
                __fish_complete_directories "$current"
            case ':files'
                __fish_complete_path "$current"
            case ':drawings'
                __fish_complete_directories "$current"
                __fish_complete_suffix .fodg .odg .otg
            case '*'
                echo $line
        end
    end
end

complete -c styleprops -f -a '(__styleprops_complete)'
