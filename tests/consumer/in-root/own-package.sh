# A product's package that provides libclientutils1 takes the place of the stand-in.
set -euo pipefail
cd /tmp
lib=usr/lib/$(gcc -print-multiarch)
mkdir -p product/DEBIAN product/$lib
g++ -shared -fPIC -I/project/include /project/tests/fake/FakeClientUtils.cpp \
  -Wl,-soname,libClientUtils.so.1 -o product/$lib/libClientUtils.so.1
cat >product/DEBIAN/control <<END
Package: product-utilities
Version: 7.3
Architecture: $(dpkg --print-architecture)
Maintainer: Product <product@example.invalid>
Provides: libclientutils1 (= 1.0.0)
Conflicts: libclientutils1
Replaces: libclientutils1
Description: the product's own utility library
END
dpkg-deb --build product
apt-get install -y ./product.deb /packages/libjournalservicehelper{1,-dev}_*.deb
! dpkg -s libclientutils1 2>/dev/null
g++ /project/tests/consumer/program.cpp -lJournalServiceHelper -o program
[ "$(./program)" = 'U(E(Berg & Sohn)) 0 <getMissedCallList>' ]
