# Read by CTest before it starts a test.
set(ENV{LC_ALL} C.UTF-8)
unset(ENV{LANGUAGE})
