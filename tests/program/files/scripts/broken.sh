if true; then
