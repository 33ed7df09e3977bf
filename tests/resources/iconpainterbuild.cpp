// The painter that draws the resource images is compiled into this test as well, so that the test
// walks the very list of images the build paints and bundles.
#include "../../resources/painter/iconpainter.cpp"
