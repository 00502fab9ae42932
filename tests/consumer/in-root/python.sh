# The Python package, from the Debian package and from the wheel, tested like a device.
set -euo pipefail
cp /project/python/tests/test_device.py /tmp # away from the project, where nothing may be found
cd /tmp

python3 -m venv --system-site-packages environment
environment/bin/pip install --no-index --no-deps /packages/journalmessages-*.whl
environment/bin/python -B -m pytest -q test_device.py
environment/bin/python -c 'import journalmessages as jm; assert "/tmp/" in jm.__file__'
rm -r environment

apt-get install -y /packages/lib{journalservicehelper1,clientutils1}_*.deb \
  /packages/python3-journalmessages_*.deb
python3 -B -m pytest -q test_device.py
python3 -B -m pytest -q --journal-update test_device.py
dpkg --purge python3-journalmessages
! python3 -c 'import journalmessages'
