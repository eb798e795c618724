# The Debian package: `cpack -G DEB` in the build folder gives
# tramelo_<version>_<arch>.deb, installed under /usr with the layout of the
# install rules. The libraries it needs come from dpkg-shlibdeps; what the
# linker can't see (Qt's platform plugins, and the translations that put Qt's
# own dialogs and buttons in Portuguese) is named here.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tramelo)
set(CPACK_PACKAGE_VENDOR Quillon)
set(CPACK_PACKAGE_CONTACT "Quillon <suporte@quillon.com.br>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "dimensionamento de placas de orifício")
# The long description, one line of the control file per line here.
string(JOIN "\n" CPACK_PACKAGE_DESCRIPTION
  "O Tramelo calcula o diâmetro do furo de uma placa de orifício ou de um"
  "orifício de restrição para líquidos, gases e vapor, a partir dos dados de"
  "processo de um ponto de medição, e dá um relatório de cálculo que pode ser"
  "impresso como folha de dados ou exportado. Cada cálculo é guardado num"
  "arquivo .trl; a ferramenta tramelo-calc calcula esses arquivos em lote.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
if(TRAMELO_DESKTOP)
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, qt6-translations-l10n")
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")
endif()
include(CPack)
