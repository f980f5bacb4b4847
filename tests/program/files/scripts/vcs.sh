vcs --git=x log -n 5 a
vcs --git-dir x lo --onel -5 - "" a
vcs --help
vcs log --hel
vcs help log
vcs sta --no-such
vcs he log
