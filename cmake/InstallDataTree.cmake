# Lays the installed data tree beside the executable without touching data a user already has.
foreach(file StatesList.txt GenericContract.rtf)
  if(NOT EXISTS ${TARGET}/${file})
    file(COPY ${SOURCE}/${file} DESTINATION ${TARGET})
  endif()
endforeach()
file(MAKE_DIRECTORY ${TARGET}/CompletedInvoices ${TARGET}/OstrelInvoicer/Narratives ${TARGET}/Templates/Contracts)
