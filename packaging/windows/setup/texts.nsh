; SPDX-FileCopyrightText: 2026 The Brindock authors
; SPDX-License-Identifier: GPL-3.0-or-later
;
; What the set-up says besides the texts that NSIS has of its own, in the suite's languages.

!macro Text NAME ENGLISH FRENCH GERMAN SPANISH ITALIAN DUTCH PORTUGUESE
  LangString ${NAME} ${LANG_ENGLISH} "${ENGLISH}"
  LangString ${NAME} ${LANG_FRENCH} "${FRENCH}"
  LangString ${NAME} ${LANG_GERMAN} "${GERMAN}"
  LangString ${NAME} ${LANG_SPANISH} "${SPANISH}"
  LangString ${NAME} ${LANG_ITALIAN} "${ITALIAN}"
  LangString ${NAME} ${LANG_DUTCH} "${DUTCH}"
  LangString ${NAME} ${LANG_PORTUGUESE} "${PORTUGUESE}"
!macroend

!insertmacro Text LanguageTitle \
  "Language" \
  "Langue" \
  "Sprache" \
  "Idioma" \
  "Lingua" \
  "Taal" \
  "Idioma"

!insertmacro Text LanguageInfo \
  "Please choose a language." \
  "Veuillez choisir une langue." \
  "Bitte eine Sprache wählen." \
  "Elija un idioma." \
  "Scegliere una lingua." \
  "Kies een taal." \
  "Escolha um idioma."

!insertmacro Text WelcomeText \
  "It is installed for you alone and needs no administrator.$\r$\n$\r$\nA Brindock 2005 that is there already is brought up to date, or repaired; settings and files stay as they are." \
  "L'installation ne vaut que pour vous et ne demande pas d'administrateur.$\r$\n$\r$\nUn Brindock 2005 déjà présent est mis à jour ou réparé ; les réglages et les fichiers restent tels quels." \
  "Es wird für Sie allein installiert und braucht keinen Administrator.$\r$\n$\r$\nEin Brindock 2005, das schon da ist, wird auf den neuen Stand gebracht oder repariert; Einstellungen und Dateien bleiben, wie sie sind." \
  "Se instala solo para usted y no necesita administrador.$\r$\n$\r$\nSi ya hay un Brindock 2005, se actualiza o se repara; los ajustes y los archivos quedan como están." \
  "Viene installato solo per questo utente e non richiede un amministratore.$\r$\n$\r$\nUn Brindock 2005 già presente viene aggiornato o riparato; impostazioni e file restano come sono." \
  "Het wordt alleen voor u geïnstalleerd en heeft geen beheerder nodig.$\r$\n$\r$\nEen Brindock 2005 dat er al is, wordt bijgewerkt of hersteld; instellingen en bestanden blijven zoals ze zijn." \
  "É instalado só para si e não precisa de administrador.$\r$\n$\r$\nUm Brindock 2005 já presente é atualizado ou reparado; as definições e os ficheiros ficam como estão."

!insertmacro Text ShortcutName \
  "Start menu entry" \
  "Entrée du menu Démarrer" \
  "Eintrag im Startmenü" \
  "Entrada del menú Inicio" \
  "Voce del menu Start" \
  "Onderdeel in het startmenu" \
  "Entrada do menu Iniciar"

!insertmacro Text AssociationsName \
  "Open files with Brindock" \
  "Ouvrir des fichiers avec Brindock" \
  "Dateien mit Brindock öffnen" \
  "Abrir archivos con Brindock" \
  "Apri file con Brindock" \
  "Bestanden openen met Brindock" \
  "Abrir ficheiros com o Brindock"

!insertmacro Text ArchivesName \
  "BIG archives (.big)" \
  "Archives BIG (.big)" \
  "BIG-Archive (.big)" \
  "Archivos BIG (.big)" \
  "Archivi BIG (.big)" \
  "BIG-archieven (.big)" \
  "Arquivos BIG (.big)"

!insertmacro Text TablesName \
  "CSF string tables (.csf)" \
  "Tables de textes CSF (.csf)" \
  "CSF-Texttabellen (.csf)" \
  "Tablas de textos CSF (.csf)" \
  "Tabelle di testi CSF (.csf)" \
  "CSF-teksttabellen (.csf)" \
  "Tabelas de textos CSF (.csf)"

!insertmacro Text MapsName \
  "Maps (.map)" \
  "Cartes (.map)" \
  "Karten (.map)" \
  "Mapas (.map)" \
  "Mappe (.map)" \
  "Kaarten (.map)" \
  "Mapas (.map)"

!insertmacro Text ReplaysName \
  "Replays (.rep)" \
  "Replays (.rep)" \
  "Replays (.rep)" \
  "Repeticiones (.rep)" \
  "Replay (.rep)" \
  "Replays (.rep)" \
  "Repetições (.rep)"

!insertmacro Text ProgramTold \
  "The suite and its command line program. The user's settings and files stay as they are." \
  "La suite et son programme en ligne de commande. Les réglages et les fichiers de l'utilisateur restent tels quels." \
  "Die Suite und ihr Programm für die Befehlszeile. Einstellungen und Dateien des Benutzers bleiben, wie sie sind." \
  "La suite y su programa de línea de comandos. Los ajustes y archivos del usuario quedan como están." \
  "La suite e il suo programma da riga di comando. Impostazioni e file dell'utente restano come sono." \
  "De suite en haar opdrachtregelprogramma. Instellingen en bestanden van de gebruiker blijven zoals ze zijn." \
  "A suite e o seu programa de linha de comandos. As definições e os ficheiros do utilizador ficam como estão."

!insertmacro Text ShortcutTold \
  "Brindock 2005 in the start menu." \
  "Brindock 2005 dans le menu Démarrer." \
  "Brindock 2005 im Startmenü." \
  "Brindock 2005 en el menú Inicio." \
  "Brindock 2005 nel menu Start." \
  "Brindock 2005 in het startmenu." \
  "Brindock 2005 no menu Iniciar."

!insertmacro Text AssociationsTold \
  "What opens with a double click. Another program's association comes back when Brindock goes." \
  "Ce qui s'ouvre d'un double clic. L'association d'un autre programme revient quand Brindock s'en va." \
  "Was ein Doppelklick öffnet. Die Zuordnung eines anderen Programms kehrt zurück, wenn Brindock geht." \
  "Lo que se abre con un doble clic. La asociación de otro programa vuelve cuando se quita Brindock." \
  "Che cosa si apre con un doppio clic. L'associazione di un altro programma torna quando si toglie Brindock." \
  "Wat met een dubbelklik opengaat. De koppeling van een ander programma keert terug als Brindock weggaat." \
  "O que se abre com um duplo clique. A associação de outro programa volta quando se remove o Brindock."

!insertmacro Text ArchivesTold \
  "A double click opens the archive; the context menu extracts it too." \
  "Un double clic ouvre l'archive ; le menu contextuel l'extrait aussi." \
  "Ein Doppelklick öffnet das Archiv; das Kontextmenü entpackt es auch." \
  "Un doble clic abre el archivo; el menú contextual también lo extrae." \
  "Un doppio clic apre l'archivio; il menu contestuale lo estrae anche." \
  "Een dubbelklik opent het archief; het snelmenu pakt het ook uit." \
  "Um duplo clique abre o arquivo; o menu de contexto também o extrai."

!insertmacro Text TablesTold \
  "A double click opens the table." \
  "Un double clic ouvre la table." \
  "Ein Doppelklick öffnet die Tabelle." \
  "Un doble clic abre la tabla." \
  "Un doppio clic apre la tabella." \
  "Een dubbelklik opent de tabel." \
  "Um duplo clique abre a tabela."

!insertmacro Text AddedTold \
  "A double click adds the file to a game." \
  "Un double clic ajoute le fichier à un jeu." \
  "Ein Doppelklick fügt die Datei einem Spiel hinzu." \
  "Un doble clic añade el archivo a un juego." \
  "Un doppio clic aggiunge il file a un gioco." \
  "Een dubbelklik voegt het bestand aan een spel toe." \
  "Um duplo clique adiciona o ficheiro a um jogo."

!insertmacro Text ArchiveKind \
  "BIG archive" \
  "Archive BIG" \
  "BIG-Archiv" \
  "Archivo BIG" \
  "Archivio BIG" \
  "BIG-archief" \
  "Arquivo BIG"

!insertmacro Text TableKind \
  "CSF string table" \
  "Table de textes CSF" \
  "CSF-Texttabelle" \
  "Tabla de textos CSF" \
  "Tabella di testi CSF" \
  "CSF-teksttabel" \
  "Tabela de textos CSF"

!insertmacro Text MapKind \
  "Game map" \
  "Carte de jeu" \
  "Spielkarte" \
  "Mapa de juego" \
  "Mappa di gioco" \
  "Spelkaart" \
  "Mapa de jogo"

!insertmacro Text ReplayKind \
  "Replay" \
  "Replay" \
  "Replay" \
  "Repetición" \
  "Replay" \
  "Replay" \
  "Repetição"

!insertmacro Text ExtractVerb \
  "&Extract…" \
  "&Extraire…" \
  "&Entpacken …" \
  "&Extraer…" \
  "&Estrai…" \
  "&Uitpakken…" \
  "&Extrair…"

!insertmacro Text AddVerb \
  "&Add to a game" \
  "&Ajouter à un jeu" \
  "Einem Spiel &hinzufügen" \
  "&Añadir a un juego" \
  "&Aggiungi a un gioco" \
  "&Aan een spel toevoegen" \
  "&Adicionar a um jogo"

!insertmacro Text PleaseClose \
  "Brindock 2005 is running. Please save your work, close all of its windows and try again." \
  "Brindock 2005 est en cours d'exécution. Veuillez enregistrer votre travail, fermer toutes ses fenêtres et réessayer." \
  "Brindock 2005 läuft. Bitte die Arbeit speichern, alle seine Fenster schließen und es noch einmal versuchen." \
  "Brindock 2005 está en marcha. Guarde su trabajo, cierre todas sus ventanas y vuelva a intentarlo." \
  "Brindock 2005 è in esecuzione. Salvare il lavoro, chiudere tutte le sue finestre e riprovare." \
  "Brindock 2005 is geopend. Sla uw werk op, sluit alle vensters ervan en probeer het opnieuw." \
  "O Brindock 2005 está em execução. Guarde o seu trabalho, feche todas as janelas e tente de novo."

!insertmacro Text CantWrite \
  "This can't be written:" \
  "Écriture impossible :" \
  "Das lässt sich nicht schreiben:" \
  "No se puede escribir:" \
  "Impossibile scrivere:" \
  "Dit kan niet worden geschreven:" \
  "Não é possível escrever:"

!insertmacro Text OtherSetup \
  "Brindock 2005 is being installed or uninstalled already." \
  "Brindock 2005 est déjà en cours d'installation ou de désinstallation." \
  "Brindock 2005 wird bereits installiert oder deinstalliert." \
  "Brindock 2005 ya se está instalando o desinstalando." \
  "Brindock 2005 è già in fase di installazione o disinstallazione." \
  "Brindock 2005 wordt al geïnstalleerd of verwijderd." \
  "O Brindock 2005 já está a ser instalado ou desinstalado."

!insertmacro Text RemovedTold \
  "The suite, its start menu entry and its associations. Rescue copies of unsaved work and what installs replaced in the games stay." \
  "La suite, son entrée du menu Démarrer et ses associations. Les copies de secours et ce que les installations ont remplacé dans les jeux restent." \
  "Die Suite, ihr Eintrag im Startmenü und ihre Zuordnungen. Rettungskopien und was Installationen in den Spielen ersetzt haben, bleiben." \
  "La suite, su entrada del menú Inicio y sus asociaciones. Las copias de rescate y lo que las instalaciones reemplazaron en los juegos se quedan." \
  "La suite, la sua voce del menu Start e le sue associazioni. Le copie di salvataggio e ciò che le installazioni hanno sostituito nei giochi restano." \
  "De suite, haar onderdeel in het startmenu en haar koppelingen. Reddingskopieën en wat installaties in de spellen vervingen, blijven." \
  "A suite, a sua entrada do menu Iniciar e as suas associações. As cópias de salvaguarda e o que as instalações substituíram nos jogos ficam."

!insertmacro Text SettingsName \
  "Settings" \
  "Réglages" \
  "Einstellungen" \
  "Ajustes" \
  "Impostazioni" \
  "Instellingen" \
  "Definições"

!insertmacro Text SettingsTold \
  "The language and the choices in the options. Without the tick a later installation finds them again." \
  "La langue et les choix des options. Sans la coche, une installation ultérieure les retrouve." \
  "Die Sprache und was in den Optionen gewählt ist. Ohne das Häkchen findet eine spätere Installation sie wieder." \
  "El idioma y lo elegido en las opciones. Sin la marca, una instalación posterior los vuelve a encontrar." \
  "La lingua e le scelte nelle opzioni. Senza il segno di spunta un'installazione successiva le ritrova." \
  "De taal en de keuzen in de opties. Zonder het vinkje vindt een latere installatie ze terug." \
  "O idioma e o que foi escolhido nas opções. Sem a marca, uma instalação posterior volta a encontrá-los."
