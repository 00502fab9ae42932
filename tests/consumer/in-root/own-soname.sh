# Built with a product's own utility library, the package depends on the package of its soname.
set -euo pipefail
lib=usr/lib/$(gcc -print-multiarch)
mkdir -p /tmp/product/DEBIAN /tmp/product/$lib
g++ -shared -fPIC -Iinclude tests/fake/FakeClientUtils.cpp -Wl,-soname,libProduct.so.3 \
  -o /tmp/product/$lib/libProduct.so.3
cat >/tmp/product/DEBIAN/control <<END
Package: libproduct3
Version: 3.1
Architecture: $(dpkg --print-architecture)
Maintainer: Product <product@example.invalid>
Description: the product's own utility library
END
echo 'libProduct 3 libproduct3 (>= 3.1)' >/tmp/product/DEBIAN/shlibs
dpkg-deb --build /tmp/product
apt-get install -y /tmp/product.deb

git init --quiet
scripts/package --clientutils /$lib/libProduct.so.3
ls build/package
[ ! -e build/package/libclientutils1_1.0.0_*.deb ]
dpkg-deb -f build/package/libjournalservicehelper1_*.deb Depends | grep -F 'libproduct3 (>= 3.1)'
! dpkg-deb -f build/package/libjournalservicehelper1_*.deb Depends | grep clientutils
! dpkg-deb -f build/package/libjournalservicehelper-dev_*.deb Depends | grep clientutils
