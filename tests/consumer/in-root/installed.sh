# Installs the packages, compiles and runs a consumer, removes and purges them: the root is as before.
set -euo pipefail
names='libjournalservicehelper1 libclientutils1 libjournalservicehelper-dev'
expected='Berg & Sohn 7 <getMissedCallList>'
everything() {
  find / -xdev \( -path /proc -o -path /dev -o -path /tmp -o -path /var/log -o -path /var/cache \
    -o -path '/var/lib/dpkg/*-old' \) -prune -o -print | LC_ALL=C sort
}

cd /tmp # not in the project, where nothing may be found
before=$(everything)
apt-get install -y /packages/lib{journalservicehelper1,clientutils1,journalservicehelper-dev}_*.deb

g++ /project/tests/consumer/program.cpp $(pkg-config --cflags --libs JournalServiceHelper) -o program
[ "$(./program)" = "$expected" ]
cmake -S /project/tests/consumer/find-package -B found
cmake --build found
[ "$(found/program)" = "$expected" ]

dpkg --remove $names
[ -z "$(dpkg -L libjournalservicehelper1 2>/dev/null)" ]
dpkg --purge $names
diff <(echo "$before") <(everything)

apt-get install -y /packages/lib{journalservicehelper1,clientutils1}_*.deb \
  /packages/journalservicehelper-tools_*.deb
journalmsg check /project/examples/data/missed.xml
journalmsg report /project/examples/data/missed.xml -o report.html
[ "$(wc -c <report.html)" -gt "$(wc -c </usr/share/journalmsg/journal.html)" ]
[ -f /usr/share/man/man1/journalmsg.1.gz ]
