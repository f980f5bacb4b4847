# Draws what `run.sh --data FOLDER` kept:
#     gnuplot -e "data='FOLDER'; image='performance.svg'" plot.gp
if (!exists("terminal")) terminal = 'svg dynamic background "white" font "sans-serif,13"'
eval "set terminal ".terminal." size 900, 1000"
set output image
set datafile separator "\t"
set multiplot layout 2, 1

set title "24 options declared, 20 arguments parsed, everything read and released: thousands of instructions"
set style data histogram
set style histogram rowstacked
set style fill solid 0.8 border -1
set boxwidth 0.7
set xtics rotate by -25 scale 0 noenhanced
set grid ytics
set key top left
plot for [column = 2:5] data."/everyday.tsv" using (column(column) / 1000):xtic(1) \
    title word("declare parse read release", column - 1)

set title "Instructions to parse, per argument"
set style data linespoints
set logscale xy
set xtics norotate scale 1 enhanced
set xlabel "arguments on the command line"
set format x "10^{%L}"
set format y "10^{%L}"
set key outside right
# The first block is tarv's.
stats data."/arguments.tsv" using 1:2 skip 1 nooutput
plot for [block = 0:STATS_blocks - 1] data."/arguments.tsv" index block using 1:2 \
    linecolor block + 1 linewidth (block == 0 ? 4 : 1.5) title columnheader(1) noenhanced
unset multiplot
