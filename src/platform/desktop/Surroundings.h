// What the program may have been started with, and cannot work with.
#pragma once

namespace quendrel {

/// Called first of all. Opens the standard streams that are closed, or messages would go into the
/// file, or to the display, that comes to have their number. A write into a closed pipe, or past
/// the greatest size of a file, fails from now on like any other and does not end the program.
void PrepareSurroundings();

/// How many files the program may have open at once where those are too few for the toolkit, which
/// would wait for ever; 0 where they are enough. Raises the limit as far as it needs and may.
int FilesAtOnceWhereTooFew();

}  // namespace quendrel
