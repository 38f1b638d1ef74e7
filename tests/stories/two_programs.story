# One folder, two programs: a script waits while another program has the folder.
# before exec 9<.; flock 9; sleep 1 &
close
expect-screen Form1
# restart
# One that keeps it longer is told.
# exit 2
# before exec 9<.; flock 9; sleep 12 &
close
