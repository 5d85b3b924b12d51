#ifndef FONTSUBSTITUTES_H
#define FONTSUBSTITUTES_H

/**
 * Gives the library's texts good faces on a system that lacks the ones its style sheets name.
 *
 * Call it once, after the QApplication is made and before the first widget. Copy this pair of files
 * into a host program and put the host's own faces into the lists.
 */
void registerFontSubstitutes();

#endif // FONTSUBSTITUTES_H
