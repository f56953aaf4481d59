<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>GraphicsPDE</name>
    <message>
        <source>&amp;Halftone:</source>
        <translation>&amp;Tramage :</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Luminosité :</translation>
    </message>
    <message>
        <source>Co&amp;ntrast:</source>
        <translation>Co&amp;ntraste :</translation>
    </message>
    <message>
        <source>Colour &amp;mode:</source>
        <translation>&amp;Mode couleur :</translation>
    </message>
    <message>
        <source>&amp;Red level:</source>
        <translation>Niveau de &amp;rouge :</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Black and red</source>
        <translation>Noir et rouge</translation>
    </message>
    <message>
        <source>Bi-directional printing</source>
        <translation>Impression bidirectionnelle</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Red level</source>
        <translation>Niveau de rouge</translation>
    </message>
    <message>
        <source>Halftone method</source>
        <translation>Méthode de tramage</translation>
    </message>
    <message>
        <source>How shades of grey become black dots</source>
        <translation>Comment les gris deviennent des points noirs</translation>
    </message>
    <message>
        <source>Left makes the picture darker, right makes it lighter</source>
        <translation>À gauche, l’image s’assombrit ; à droite, elle s’éclaircit</translation>
    </message>
    <message>
        <source>Brightness level</source>
        <translation>Valeur de luminosité</translation>
    </message>
    <message>
        <source>Left makes light and dark more alike, right sets them further apart</source>
        <translation>À gauche, clair et foncé se rapprochent ; à droite, ils s’écartent</translation>
    </message>
    <message>
        <source>Contrast level</source>
        <translation>Valeur de contraste</translation>
    </message>
    <message>
        <source>Red needs a printer and a tape that print black and red</source>
        <translation>Le rouge demande une imprimante et un ruban noir et rouge</translation>
    </message>
    <message>
        <source>Left prints less red, right prints more; only while black and red is chosen</source>
        <translation>À gauche, moins de rouge ; à droite, davantage ; seulement en noir et rouge</translation>
    </message>
    <message>
        <source>Red level number</source>
        <translation>Valeur du niveau de rouge</translation>
    </message>
    <message>
        <source>Print &amp;direction:</source>
        <translation>&amp;Sens d’impression :</translation>
    </message>
    <message>
        <source>Prints on the way there and on the way back: faster, but lines may meet less exactly</source>
        <translation>Imprime à l’aller et au retour : plus rapide, mais les lignes se rejoignent moins bien</translation>
    </message>
    <message>
        <source>A number from -20 to 20; Up and Down change it by one</source>
        <translation>Un nombre de -20 à 20 ; les flèches haut et bas le changent de un</translation>
    </message>
    <message>
        <source>A number from -20 to 20; only while black and red is chosen</source>
        <translation>Un nombre de -20 à 20 ; seulement en noir et rouge</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>AD_PANEL_NAME</source>
        <extracomment>Name of the panel in the dialog</extracomment>
        <translation>Graphismes</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <extracomment>Title label</extracomment>
        <translation>Tramage :</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Seuil (texte, codes-barres)</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Trame ordonnée (dessins)</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Diffusion d’erreur (photos)</translation>
    </message>
    <message>
        <source>HC_MinValue</source>
        <extracomment>Scale label of the brightness, contrast and red level sliders</extracomment>
        <translation>-20</translation>
    </message>
    <message>
        <source>HC_MidValue</source>
        <extracomment>Scale label of the brightness, contrast and red level sliders</extracomment>
        <translation>0</translation>
    </message>
    <message>
        <source>HC_MaxValue</source>
        <extracomment>Scale label of the brightness, contrast and red level sliders</extracomment>
        <translation>+20</translation>
    </message>
    <message>
        <source>HC_Brightness</source>
        <extracomment>Title label</extracomment>
        <translation>Luminosité :</translation>
    </message>
    <message>
        <source>HC_Contrast</source>
        <extracomment>Title label</extracomment>
        <translation>Contraste :</translation>
    </message>
    <message>
        <source>RS_BiDiPrint</source>
        <extracomment>Title of the check box</extracomment>
        <translation>Impression bidirectionnelle</translation>
    </message>
    <message>
        <source>HC_Color</source>
        <extracomment>Title label</extracomment>
        <translation>Mode couleur :</translation>
    </message>
    <message>
        <source>HC_Monochrome</source>
        <extracomment>Item of the colour mode; value in the summary</extracomment>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>HC_BlackRed</source>
        <extracomment>Item of the colour mode; value in the summary</extracomment>
        <translation>Noir et rouge</translation>
    </message>
    <message>
        <source>HC_RedLevel</source>
        <extracomment>Title label</extracomment>
        <translation>Niveau de rouge :</translation>
    </message>
    <message>
        <source>HC_LevelRange</source>
        <extracomment>Tool tip of a number field that refuses what is typed or cuts it to the bounds</extracomment>
        <translation>Un niveau est un nombre entier de -20 à 20.</translation>
    </message>
    <message>
        <source>HC_LevelMissing</source>
        <extracomment>Tool tip of a number field whose slider went back to another level</extracomment>
        <translation>L’imprimante n’a pas ce niveau.</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>HC_STitle_Brightness</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>HC_STitle_Contrast</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>RS_STitle_BiDiPrint</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Impression bidirectionnelle</translation>
    </message>
    <message>
        <source>HC_STitle_Color</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>HC_STitle_RedLevel</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Niveau de rouge</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <extracomment>Value of bi-directional printing in the summary</extracomment>
        <translation>Oui</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <extracomment>Value of bi-directional printing in the summary</extracomment>
        <translation>Non</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Tramage :</translation>
    </message>
    <message>
        <source>Brightness : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Luminosité :</translation>
    </message>
    <message>
        <source>Contrast : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Contraste :</translation>
    </message>
    <message>
        <source>Colour mode : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Mode couleur :</translation>
    </message>
    <message>
        <source>Red level : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Niveau de rouge :</translation>
    </message>
    <message>
        <source>Halftone</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>Brightness</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Bi-directional printing</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Impression bidirectionnelle</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Red level</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Niveau de rouge</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Black and red</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Noir et rouge</translation>
    </message>
</context>
</TS>
