# Sourced by the tests that print on a printer of the machine: a queue of the print system's own scheduler, set up for the
# test alone, whose printer keeps what it is sent. They skip themselves where there is no scheduler.

scheduler=$(PATH=$PATH:/usr/sbin command -v cupsd) || {
    echo "skipped: there is no print scheduler (cupsd) on this machine"
    exit 77
}

write_scheduler_files() {
    mkdir -p "$spool"/{bin/backend,bin/filter,cache,state,jobs/tmp,data/mime,paper}
    # The scheduler's helper starts our backend as a user of its own.
    local daemon
    for daemon in /usr/lib/cups/daemon /usr/libexec/cups/daemon; do
        [ -d "$daemon" ] && ln -s "$daemon" "$spool/bin/daemon"
    done
    chmod 755 "$home" "$spool"
    chmod 777 "$spool/paper"
    cat >"$spool/cupsd.conf" <<END
Listen $spool/socket
PidFile $spool/state/pid
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
END
    cat >"$spool/cups-files.conf" <<END
ServerRoot $spool
ServerBin $spool/bin
CacheDir $spool/cache
StateDir $spool/state
RequestRoot $spool/jobs
TempDir $spool/jobs/tmp
DataDir $spool/data
ErrorLog $spool/error_log
AccessLog $spool/access_log
PageLog $spool/page_log
END
    printf 'application/pdf pdf string(0,%%PDF)\napplication/octet-stream\n' | tee "$spool/mime.types" \
        >"$spool/data/mime/mime.types"
    echo | tee "$spool/mime.convs" >"$spool/data/mime/mime.convs"
    cat >"$spool/printers.conf" <<END
<DefaultPrinter Hallway>
Info Printer in the hallway
MakeModel Printer without a driver
DeviceURI keep:/paper
State Idle
Accepting Yes
Shared No
OpPolicy default
ErrorPolicy abort-job
</DefaultPrinter>
END
}

# While there is a file "none" where the paper lies, it has no paper and says so. Its third argument is the job's name,
# its sixth the file; without arguments it is asked what it serves.
write_printer() {
    cat >"$spool/bin/backend/keep" <<END
#!/bin/sh
[ \$# -eq 0 ] && { echo 'direct keep "Unknown" "Keeps what it is sent"'; exit 0; }
while [ -e "$spool/paper/none" ]; do
    echo 'STATE: +media-empty-error' >&2
    sleep 1
done
echo 'STATE: -media-empty-error' >&2
echo "\$3" >>"$spool/paper/printed"
cat "\${6:--}" >"$spool/paper/.coming" && chmod 644 "$spool/paper/.coming" &&
    mv "$spool/paper/.coming" "$spool/paper/\$3.pdf"
END
    chmod 755 "$spool/bin/backend/keep"
}

# Other printers than the one in the hallway are a test's own.
add_printers() { :; }

start_scheduler() {
    spool=$home/spool
    write_scheduler_files
    write_printer
    add_printers
    "$scheduler" -f -c "$spool/cupsd.conf" -s "$spool/cups-files.conf" 2>"$home/scheduler" &
    scheduler_pid=$!
    pids+=("$scheduler_pid")
    local i
    for ((i = 0; i < 50; i++)); do
        [ -S "$spool/socket" ] && break
        sleep 0.1
    done
    if [ ! -S "$spool/socket" ]; then
        echo "skipped: the print scheduler doesn't start here: $(cat "$home/scheduler")"
        exit 77
    fi
    export CUPS_SERVER=$spool/socket
}
