# The files that the programs here make, by their places in the one folder that all builds use.
set(QUENDREL_ART_FOLDER ${CMAKE_SOURCE_DIR}/build/art)

set(QUENDREL_SKINS Atelier Beacon Carbon Daylight)

# The pictures that are built into the program; but for the icon, also at double size.
set(QUENDREL_ICON_SIZES 16 22 24 32 48 64 128 256 512)
set(QUENDREL_BUILTIN_FILES splash.png splash-mask.png agifEmail.gif agifHome.gif agifTorch.gif)
list(TRANSFORM QUENDREL_BUILTIN_FILES PREPEND 2x/ OUTPUT_VARIABLE fine_files)
list(APPEND QUENDREL_BUILTIN_FILES ${fine_files})
foreach(size ${QUENDREL_ICON_SIZES})
    list(APPEND QUENDREL_BUILTIN_FILES icon-${size}.png)
endforeach()
list(TRANSFORM QUENDREL_BUILTIN_FILES PREPEND ${QUENDREL_ART_FOLDER}/builtin/)

set(QUENDREL_SOUNDS
    BigClick.wav SelectColor.wav SmallClick.wav ShowCode.wav StartGame.wav GotIt.wav
    MediumClick.wav PutColor.wav Black.wav White.wav NoGood.wav)

# The player sees a tune under the name of its file.
set(QUENDREL_TUNES
    "Canon in D"
    "Greensleeves"
    "Gymnopedie No. 1"
    "La Folia"
    "Lamplight"
    "Londonderry Air"
    "Lullaby"
    "Minuet in G"
    "Prelude in C"
    "Salley Gardens"
    "Si Bheag, Si Mhor"
    "Walnut and Brass")

# The pegs and marks that illustrate the page of the rules.
set(QUENDREL_RULES_PICTURES
    Yellow.png Blue.png Red.png Green.png White.png Black.png Brown.png Orange.png Purple.png
    Pink.png MarkBlack.png MarkWhite.png)
list(TRANSFORM QUENDREL_RULES_PICTURES PREPEND ${QUENDREL_ART_FOLDER}/Rules/)
