rem Names the library set of this installation, by which the designer knows the compiler: owidggnu, the GNU compilers.
