add_test(NAME mqTemplateIsCurrent
  COMMAND mqWriteTemplate ${PROJECT_SOURCE_DIR}/po/mqCommFuncs.pot)
foreach(language de en_XA)
  add_test(NAME mqTranslationIsComplete.${language}
    COMMAND ${MQ_MSGCMP} ${PROJECT_SOURCE_DIR}/po/${language}.po
      ${PROJECT_SOURCE_DIR}/po/mqCommFuncs.pot)
endforeach()
