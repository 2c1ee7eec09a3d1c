<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Orvanta</name>
    <message>
        <source>Show the axis cross</source>
        <translation>Afficher le trièdre</translation>
    </message>
    <message>
        <source>Show the view cube</source>
        <translation>Afficher le cube de vue</translation>
    </message>
    <message>
        <source>Open models in perspective</source>
        <translation>Ouvrir les modèles en perspective</translation>
    </message>
    <message>
        <source>Show the model tree</source>
        <translation>Afficher l&apos;arbre du modèle</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>&amp;Other colour...</source>
        <translation>Autre c&amp;ouleur...</translation>
    </message>
    <message>
        <source>&amp;As in the file</source>
        <translation>Comme &amp;dans le fichier</translation>
    </message>
    <message>
        <source>&amp;Opaque</source>
        <translation>&amp;Opaque</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>No model has been opened yet</source>
        <translation>Aucun modèle n&apos;a encore été ouvert</translation>
    </message>
    <message>
        <source>Open a model</source>
        <translation>Ouvrir un modèle</translation>
    </message>
    <message>
        <source>STEP, IGES, BREP, STL, OBJ or glTF. Drop a file here, or choose one.</source>
        <translation>STEP, IGES, BREP, STL, OBJ ou glTF. Déposez un fichier ici, ou choisissez-en un.</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open one of the models opened last</source>
        <translation>Ouvrir l&apos;un des derniers modèles ouverts</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close the model</source>
        <translation>Fermer le modèle</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Save the model in another format</source>
        <translation>Enregistrer le modèle dans un autre format</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Save a picture of the view</source>
        <translation>Enregistrer une image de la vue</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Show the whole model</source>
        <translation>Afficher tout le modèle</translation>
    </message>
    <message>
        <source>Fit selection</source>
        <translation>Ajuster à la sélection</translation>
    </message>
    <message>
        <source>Show the selected parts</source>
        <translation>Cadrer les pièces sélectionnées</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Bring the model nearer</source>
        <translation>Rapprocher le modèle</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Move the model away</source>
        <translation>Éloigner le modèle</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspective</translation>
    </message>
    <message>
        <source>Change between perspective and parallel projection</source>
        <translation>Basculer entre projection perspective et parallèle</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Face</translation>
    </message>
    <message>
        <source>Look from the front</source>
        <translation>Vue de face</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Arrière</translation>
    </message>
    <message>
        <source>Look from the back</source>
        <translation>Vue arrière</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Look from the left</source>
        <translation>Vue de gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Look from the right</source>
        <translation>Vue de droite</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Dessus</translation>
    </message>
    <message>
        <source>Look from the top</source>
        <translation>Vue de dessus</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dessous</translation>
    </message>
    <message>
        <source>Look from below</source>
        <translation>Vue de dessous</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>Isométrique</translation>
    </message>
    <message>
        <source>Look from a corner</source>
        <translation>Vue isométrique</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Hide the selected parts</source>
        <translation>Masquer les pièces sélectionnées</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Isoler</translation>
    </message>
    <message>
        <source>Show nothing but the selected parts</source>
        <translation>N&apos;afficher que les pièces sélectionnées</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Show all parts</source>
        <translation>Afficher toutes les pièces</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Colour the selected parts</source>
        <translation>Colorer les pièces sélectionnées</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>Make the selected parts transparent</source>
        <translation>Rendre transparentes les pièces sélectionnées</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Move the selected parts</source>
        <translation>Déplacer les pièces sélectionnées</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Undo all hiding, colouring, transparency and moving</source>
        <translation>Annuler tous les masquages, couleurs, transparences et déplacements</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Select the whole model</source>
        <translation>Sélectionner tout le modèle</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Ne rien sélectionner</translation>
    </message>
    <message>
        <source>Clear the selection</source>
        <translation>Effacer la sélection</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Change the options</source>
        <translation>Modifier les options</translation>
    </message>
    <message>
        <source>Model tree</source>
        <translation>Arbre du modèle</translation>
    </message>
    <message>
        <source>Show or hide the model tree</source>
        <translation>Afficher ou masquer l&apos;arbre du modèle</translation>
    </message>
    <message>
        <source>Side bar</source>
        <translation>Barre latérale</translation>
    </message>
    <message>
        <source>Show or hide the side bar</source>
        <translation>Afficher ou masquer la barre latérale</translation>
    </message>
    <message>
        <source>Next pane</source>
        <translation>Volet suivant</translation>
    </message>
    <message>
        <source>Go round from the model tree to the view, the side bar and the ribbon</source>
        <translation>Passer de l'arbre du modèle à la vue, à la barre latérale puis au ruban</translation>
    </message>
    <message>
        <source>Previous pane</source>
        <translation>Volet précédent</translation>
    </message>
    <message>
        <source>Go round the other way</source>
        <translation>Parcourir dans l'autre sens</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Back to start</source>
        <translation>&amp;Retour au départ</translation>
    </message>
    <message>
        <source>Model view</source>
        <translation>Vue du modèle</translation>
    </message>
    <message>
        <source>The model can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>Le modèle ne peut pas être affiché : aucun écran ne prend en charge OpenGL.</translation>
    </message>
    <message>
        <source>Find a part</source>
        <translation>Rechercher une pièce</translation>
    </message>
    <message>
        <source>No model</source>
        <translation>Aucun modèle</translation>
    </message>
    <message>
        <source>This pane is shown in a window of its own. Close that window to bring it back.</source>
        <translation>Ce volet est affiché dans sa propre fenêtre. Fermez-la pour le ramener ici.</translation>
    </message>
    <message>
        <source>Show this pane in a window of its own</source>
        <translation>Afficher ce volet dans sa propre fenêtre</translation>
    </message>
    <message>
        <source>Keep the side bar open</source>
        <translation>Garder la barre latérale ouverte</translation>
    </message>
    <message>
        <source>Hide the side bar while it is not used</source>
        <translation>Masquer la barre latérale quand elle ne sert pas</translation>
    </message>
    <message>
        <source>Show the panels before</source>
        <translation>Afficher les groupes précédents</translation>
    </message>
    <message>
        <source>Show the panels after</source>
        <translation>Afficher les groupes suivants</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vue</translation>
    </message>
    <message>
        <source>Standard views</source>
        <translation>Vues standard</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Pièces</translation>
    </message>
    <message>
        <source>The picture can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>L&apos;image ne peut pas être créée : aucun écran ne prend en charge OpenGL.</translation>
    </message>
    <message>
        <source>There is nothing to draw. Open a model first.</source>
        <translation>Il n&apos;y a rien à dessiner. Ouvrez d&apos;abord un modèle.</translation>
    </message>
    <message>
        <source>No exporter is installed. Install Orvanta again and start it anew.</source>
        <translation>Aucun module d&apos;exportation n&apos;est installé. Réinstallez Orvanta et redémarrez-le.</translation>
    </message>
    <message>
        <source>The action was broken off by an unexpected error. Try again.</source>
        <translation>L&apos;action a été interrompue par une erreur inattendue. Réessayez.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;... Press Esc to stop.</source>
        <translation>Ouverture de « %1 »... Appuyez sur Échap pour arrêter.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>The system&apos;s language</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>The new language is used when Orvanta is started again.</source>
        <translation>La nouvelle langue sera utilisée au prochain démarrage d&apos;Orvanta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t exist. Check the path or choose another file.</source>
        <translation>« %1 » n&apos;existe pas. Vérifiez le chemin ou choisissez un autre fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a model file in it.</source>
        <translation>« %1 » est un dossier. Choisissez un fichier de modèle qui s&apos;y trouve.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a type that can&apos;t be opened. Open STEP, IGES, BREP, STL, OBJ, glTF or Orvanta files.</source>
        <translation>« %1 » est d&apos;un type qui ne peut pas être ouvert. Ouvrez des fichiers STEP, IGES, BREP, STL, OBJ, glTF ou Orvanta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read. Check that you may read it and that it isn&apos;t in use.</source>
        <translation>« %1 » ne peut pas être lu. Vérifiez que vous y avez accès et qu&apos;il n&apos;est pas utilisé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Export the model again and open the new file.</source>
        <translation>« %1 » est vide. Exportez à nouveau le modèle et ouvrez le nouveau fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends too early: a part of it is missing. Copy or export the file again.</source>
        <translation>« %1 » se termine trop tôt : il en manque une partie. Copiez ou exportez à nouveau le fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t what its ending says. Check the file, or export the model again.</source>
        <translation>« %1 » n&apos;est pas ce qu&apos;indique son extension. Vérifiez le fichier ou exportez à nouveau le modèle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: its content is damaged. Export the model again and open the new file.</source>
        <translation>« %1 » ne peut pas être lu : son contenu est endommagé. Exportez à nouveau le modèle et ouvrez le nouveau fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t whole: entries that others refer to are missing. Copy or export the file again.</source>
        <translation>« %1 » est incomplet : des entrées auxquelles d&apos;autres font référence manquent. Copiez ou exportez à nouveau le fichier.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot; was stopped.</source>
        <translation>L&apos;ouverture de « %1 » a été arrêtée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no part with surfaces. Export the model with its solids and open the new file.</source>
        <translation>« %1 » ne contient aucune pièce avec des surfaces. Exportez le modèle avec ses solides et ouvrez le nouveau fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than there is. Close other programs and try again.</source>
        <translation>« %1 » nécessite plus de mémoire qu&apos;il n&apos;y en a. Fermez d&apos;autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be opened. Check the file and try again.</source>
        <translation>« %1 » ne peut pas être ouvert. Vérifiez le fichier et réessayez.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open.</source>
        <translation>« %1 » est ouvert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved.</source>
        <translation>« %1 » a été enregistré.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is a folder. Choose a name for the file.</source>
        <translation>Impossible d&apos;écrire « %1 » : c&apos;est un dossier. Choisissez un nom de fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its folder doesn&apos;t exist. Choose another folder.</source>
        <translation>Impossible d&apos;écrire « %1 » : son dossier n&apos;existe pas. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is protected against writing. Choose another name.</source>
        <translation>Impossible d&apos;écrire « %1 » : ce fichier est protégé en écriture. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: you may not write to its folder. Choose another folder.</source>
        <translation>Impossible d&apos;écrire « %1 » : vous n&apos;avez pas le droit d&apos;écrire dans son dossier. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the disk is full. Make room, or choose another disk.</source>
        <translation>Impossible d&apos;écrire « %1 » : le disque est plein. Libérez de la place ou choisissez un autre disque.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk is read-only. Choose another disk.</source>
        <translation>Impossible d&apos;écrire « %1 » : le disque est en lecture seule. Choisissez un autre disque.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: your quota is used up. Make room, or choose another disk.</source>
        <translation>Impossible d&apos;écrire « %1 » : votre quota est épuisé. Libérez de l&apos;espace ou choisissez un autre disque.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk takes no file of this size. Choose another disk.</source>
        <translation>Impossible d&apos;écrire « %1 » : le disque n&apos;accepte pas de fichier de cette taille. Choisissez un autre disque.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its name is too long. Choose a shorter name.</source>
        <translation>Impossible d&apos;écrire « %1 » : le nom est trop long. Choisissez un nom plus court.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the path of its folder is too long. Choose a folder with a shorter path.</source>
        <translation>Impossible d&apos;écrire « %1 » : le chemin du dossier est trop long. Choisissez un dossier dont le chemin est plus court.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the memory is full. Close other programs and try again.</source>
        <translation>Impossible d&apos;écrire « %1 » : la mémoire est pleine. Fermez d&apos;autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: the model is too large for this format. Choose another format.</source>
        <translation>Impossible d&apos;enregistrer « %1 » : le modèle est trop grand pour ce format. Choisissez un autre format.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and the free space, or choose another place.</source>
        <translation>Impossible d&apos;écrire « %1 ». Vérifiez le dossier et l&apos;espace libre, ou choisissez un autre emplacement.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and that the name ends in .png or .jpg.</source>
        <translation>Impossible d&apos;écrire « %1 ». Vérifiez le dossier et que le nom se termine par .png ou .jpg.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: its exporter isn&apos;t installed. Choose another format.</source>
        <translation>Impossible d&apos;enregistrer « %1 » : son module d&apos;exportation n&apos;est pas installé. Choisissez un autre format.</translation>
    </message>
    <message>
        <source>There is nothing to save in this format. Open a model with parts first.</source>
        <translation>Il n&apos;y a rien à enregistrer dans ce format. Ouvrez d&apos;abord un modèle avec des pièces.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is missing. Install Orvanta again and start it anew.</source>
        <translation>La bibliothèque « %1 » est introuvable. Réinstallez Orvanta et redémarrez-le.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; lacks the function &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>La fonction « %2 » manque dans la bibliothèque « %1 ». Réinstallez Orvanta et redémarrez-le.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no plug-in. The viewer works on without it; install the plug-in again to get it back.</source>
        <translation>La bibliothèque « %1 » n&apos;a créé aucun module. La visionneuse continue sans lui ; réinstallez le module pour le retrouver.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no object. Install Orvanta again and start it anew.</source>
        <translation>La bibliothèque « %1 » n&apos;a créé aucun objet. Réinstallez Orvanta et redémarrez-le.</translation>
    </message>
    <message>
        <source>The display offers no OpenGL. Install a graphics driver, or Mesa&apos;s software one.</source>
        <translation>L&apos;écran ne prend pas en charge OpenGL. Installez un pilote graphique, ou le pilote logiciel de Mesa.</translation>
    </message>
    <message>
        <source>There is no display to draw on. Start the viewer from a desktop session.</source>
        <translation>Il n&apos;y a pas d&apos;écran pour l&apos;affichage. Démarrez la visionneuse depuis une session de bureau.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Bleu canard</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Gris foncé</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; can't be loaded: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>La bibliothèque « %1 » ne peut pas être chargée : « %2 ». Réinstallez Orvanta et redémarrez-le.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>La bibliothèque « %1 » n'a pas pu démarrer : « %2 ». Réinstallez Orvanta et redémarrez-le.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start. Install Orvanta again and start it anew.</source>
        <translation>La bibliothèque « %1 » n'a pas pu démarrer. Réinstallez Orvanta et redémarrez-le.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end: &quot;%2&quot;. Save your work and start Orvanta anew.</source>
        <translation>La bibliothèque « %1 » ne s'est pas arrêtée correctement : « %2 ». Enregistrez votre travail et redémarrez Orvanta.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end. Save your work and start Orvanta anew.</source>
        <translation>La bibliothèque « %1 » ne s'est pas arrêtée correctement. Enregistrez votre travail et redémarrez Orvanta.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is no plug-in for the viewer's windows. Move it out of the folder &quot;%2&quot;.</source>
        <translation>La bibliothèque « %1 » n'est pas un module pour les fenêtres de la visionneuse. Retirez-la du dossier « %2 ».</translation>
    </message>
    <message>
        <source>The picture can't be drawn on this display. Check the graphics driver.</source>
        <translation>L'image ne peut pas être créée sur cet écran. Vérifiez le pilote graphique.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; can't be written. Check the folder and that it ends in .png or .jpg.</source>
        <translation>Impossible d'écrire l'image « %1 ». Vérifiez le dossier et que le nom se termine par .png ou .jpg.</translation>
    </message>
    <message>
        <source>There is no display to draw on. Install &quot;%1&quot; or start the viewer from a desktop session.</source>
        <translation>Il n'y a pas d'écran pour l'affichage. Installez « %1 » ou démarrez la visionneuse depuis une session de bureau.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln part(s)</source>
        <translation>
            <numerusform>%Ln pièce</numerusform>
            <numerusform>%Ln pièces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangle(s)</source>
        <translation>
            <numerusform>%Ln triangle</numerusform>
            <numerusform>%Ln triangles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln sélectionnée</numerusform>
            <numerusform>%Ln sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <source>Only one model can be opened at a time. Give one file.</source>
        <translation>Un seul modèle peut être ouvert à la fois. Indiquez un seul fichier.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; isn't known. Use --help to see all options.</source>
        <translation>L'option « %1 » est inconnue. Utilisez --help pour voir toutes les options.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value. Use --help to see all options.</source>
        <translation>L'option « %1 » nécessite une valeur. Utilisez --help pour voir toutes les options.</translation>
    </message>
    <message>
        <source>The language must be a code of two letters, such as &quot;%1&quot;.</source>
        <translation>La langue doit être un code de deux lettres, par exemple « %1 ».</translation>
    </message>
    <message>
        <source>There is nothing to export or draw. Give a model file, too.</source>
        <translation>Il n'y a rien à exporter ni à dessiner. Indiquez aussi un fichier de modèle.</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it from a desktop session, or use --export or --screenshot.</source>
        <translation>Il n'y a pas d'écran pour ouvrir une fenêtre. Démarrez la visionneuse depuis une session de bureau, ou utilisez --export ou --screenshot.</translation>
    </message>
    <message>
        <source>Usage: orvanta [FILE] [OPTION]...</source>
        <translation>Utilisation : orvanta [FILE] [OPTION]...</translation>
    </message>
    <message>
        <source>Views and reviews 3D CAD models: STEP, IGES, BREP, STL, OBJ and glTF.</source>
        <translation>Affiche et passe en revue des modèles CAO 3D : STEP, IGES, BREP, STL, OBJ et glTF.</translation>
    </message>
    <message>
        <source>address of the cloud service</source>
        <translation>adresse du service cloud</translation>
    </message>
    <message>
        <source>where the user's data lies</source>
        <translation>dossier des données de l'utilisateur</translation>
    </message>
    <message>
        <source>language, two letters: en, fr, de, ja, ko, zh, es or pt</source>
        <translation>langue, deux lettres : en, fr, de, ja, ko, zh, es ou pt</translation>
    </message>
    <message>
        <source>write FILE to OUT in the format of its ending and exit; may be repeated</source>
        <translation>écrire FILE dans OUT au format de son extension et quitter ; peut être répété</translation>
    </message>
    <message>
        <source>draw FILE to a picture (.png, .jpg) and exit</source>
        <translation>dessiner FILE dans une image (.png, .jpg) et quitter</translation>
    </message>
    <message>
        <source>show this text and exit</source>
        <translation>afficher ce texte et quitter</translation>
    </message>
    <message>
        <source>show the version and exit</source>
        <translation>afficher la version et quitter</translation>
    </message>
</context>
</TS>
