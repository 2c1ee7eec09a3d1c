<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>Orvanta</name>
    <message>
        <source>Show the axis cross</source>
        <translation>Mostrar os eixos de coordenadas</translation>
    </message>
    <message>
        <source>Show the view cube</source>
        <translation>Mostrar o cubo de vistas</translation>
    </message>
    <message>
        <source>Open models in perspective</source>
        <translation>Abrir modelos em perspectiva</translation>
    </message>
    <message>
        <source>Show the model tree</source>
        <translation>Mostrar a árvore do modelo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>&amp;Other colour...</source>
        <translation>&amp;Outra cor...</translation>
    </message>
    <message>
        <source>&amp;As in the file</source>
        <translation>Como no &amp;arquivo</translation>
    </message>
    <message>
        <source>&amp;Opaque</source>
        <translation>&amp;Opaco</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>No model has been opened yet</source>
        <translation>Nenhum modelo foi aberto ainda</translation>
    </message>
    <message>
        <source>Open a model</source>
        <translation>Abrir um modelo</translation>
    </message>
    <message>
        <source>STEP, IGES, BREP, STL, OBJ or glTF. Drop a file here, or choose one.</source>
        <translation>STEP, IGES, BREP, STL, OBJ ou glTF. Solte um arquivo aqui ou escolha um.</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recentes</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open one of the models opened last</source>
        <translation>Abrir um dos últimos modelos abertos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Close the model</source>
        <translation>Fechar o modelo</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Save the model in another format</source>
        <translation>Salvar o modelo em outro formato</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Save a picture of the view</source>
        <translation>Salvar uma imagem da vista</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show the whole model</source>
        <translation>Mostrar o modelo inteiro</translation>
    </message>
    <message>
        <source>Fit selection</source>
        <translation>Ajustar à seleção</translation>
    </message>
    <message>
        <source>Show the selected parts</source>
        <translation>Enquadrar as peças selecionadas</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Bring the model nearer</source>
        <translation>Aproximar o modelo</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Move the model away</source>
        <translation>Afastar o modelo</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspectiva</translation>
    </message>
    <message>
        <source>Change between perspective and parallel projection</source>
        <translation>Alternar entre projeção em perspectiva e paralela</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Frontal</translation>
    </message>
    <message>
        <source>Look from the front</source>
        <translation>Ver de frente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Posterior</translation>
    </message>
    <message>
        <source>Look from the back</source>
        <translation>Ver de trás</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Look from the left</source>
        <translation>Ver da esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Look from the right</source>
        <translation>Ver da direita</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Superior</translation>
    </message>
    <message>
        <source>Look from the top</source>
        <translation>Ver de cima</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Inferior</translation>
    </message>
    <message>
        <source>Look from below</source>
        <translation>Ver de baixo</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>Isométrica</translation>
    </message>
    <message>
        <source>Look from a corner</source>
        <translation>Ver de um canto</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Hide the selected parts</source>
        <translation>Ocultar as peças selecionadas</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Isolar</translation>
    </message>
    <message>
        <source>Show nothing but the selected parts</source>
        <translation>Mostrar somente as peças selecionadas</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar tudo</translation>
    </message>
    <message>
        <source>Show all parts</source>
        <translation>Mostrar todas as peças</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Colour the selected parts</source>
        <translation>Colorir as peças selecionadas</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparência</translation>
    </message>
    <message>
        <source>Make the selected parts transparent</source>
        <translation>Tornar transparentes as peças selecionadas</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Move the selected parts</source>
        <translation>Mover as peças selecionadas</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Undo all hiding, colouring, transparency and moving</source>
        <translation>Desfazer tudo o que foi ocultado, colorido, tornado transparente e movido</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Select the whole model</source>
        <translation>Selecionar o modelo inteiro</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Não selecionar nada</translation>
    </message>
    <message>
        <source>Clear the selection</source>
        <translation>Limpar a seleção</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Change the options</source>
        <translation>Alterar as opções</translation>
    </message>
    <message>
        <source>Model tree</source>
        <translation>Árvore do modelo</translation>
    </message>
    <message>
        <source>Show or hide the model tree</source>
        <translation>Mostrar ou ocultar a árvore do modelo</translation>
    </message>
    <message>
        <source>Side bar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Show or hide the side bar</source>
        <translation>Mostrar ou ocultar a barra lateral</translation>
    </message>
    <message>
        <source>Next pane</source>
        <translation>Próximo painel</translation>
    </message>
    <message>
        <source>Go round from the model tree to the view, the side bar and the ribbon</source>
        <translation>Percorrer a árvore do modelo, a vista, a barra lateral e a faixa de opções</translation>
    </message>
    <message>
        <source>Previous pane</source>
        <translation>Painel anterior</translation>
    </message>
    <message>
        <source>Go round the other way</source>
        <translation>Percorrer no sentido contrário</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Back to start</source>
        <translation>&amp;Voltar ao início</translation>
    </message>
    <message>
        <source>Model view</source>
        <translation>Vista do modelo</translation>
    </message>
    <message>
        <source>The model can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>O modelo não pode ser desenhado: não há tela com OpenGL.</translation>
    </message>
    <message>
        <source>Find a part</source>
        <translation>Localizar uma peça</translation>
    </message>
    <message>
        <source>No model</source>
        <translation>Nenhum modelo</translation>
    </message>
    <message>
        <source>This pane is shown in a window of its own. Close that window to bring it back.</source>
        <translation>Este painel está em uma janela própria. Feche-a para trazê-lo de volta.</translation>
    </message>
    <message>
        <source>Show this pane in a window of its own</source>
        <translation>Mostrar este painel em uma janela própria</translation>
    </message>
    <message>
        <source>Keep the side bar open</source>
        <translation>Manter a barra lateral aberta</translation>
    </message>
    <message>
        <source>Hide the side bar while it is not used</source>
        <translation>Ocultar a barra lateral quando não estiver em uso</translation>
    </message>
    <message>
        <source>Show the panels before</source>
        <translation>Mostrar os grupos anteriores</translation>
    </message>
    <message>
        <source>Show the panels after</source>
        <translation>Mostrar os grupos seguintes</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Standard views</source>
        <translation>Vistas padrão</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Peças</translation>
    </message>
    <message>
        <source>The picture can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>A imagem não pode ser desenhada: não há tela com OpenGL.</translation>
    </message>
    <message>
        <source>There is nothing to draw. Open a model first.</source>
        <translation>Não há nada para desenhar. Abra um modelo primeiro.</translation>
    </message>
    <message>
        <source>No exporter is installed. Install Orvanta again and start it anew.</source>
        <translation>Nenhum exportador está instalado. Instale o Orvanta novamente e reinicie-o.</translation>
    </message>
    <message>
        <source>The action was broken off by an unexpected error. Try again.</source>
        <translation>A ação foi interrompida por um erro inesperado. Tente novamente.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;... Press Esc to stop.</source>
        <translation>Abrindo &quot;%1&quot;... Pressione Esc para parar.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>The system&apos;s language</source>
        <translation>Idioma do sistema</translation>
    </message>
    <message>
        <source>The new language is used when Orvanta is started again.</source>
        <translation>O novo idioma será usado na próxima vez que o Orvanta for iniciado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t exist. Check the path or choose another file.</source>
        <translation>&quot;%1&quot; não existe. Verifique o caminho ou escolha outro arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a model file in it.</source>
        <translation>&quot;%1&quot; é uma pasta. Escolha um arquivo de modelo dentro dela.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a type that can&apos;t be opened. Open STEP, IGES, BREP, STL, OBJ, glTF or Orvanta files.</source>
        <translation>&quot;%1&quot; é de um tipo que não pode ser aberto. Abra arquivos STEP, IGES, BREP, STL, OBJ, glTF ou Orvanta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read. Check that you may read it and that it isn&apos;t in use.</source>
        <translation>&quot;%1&quot; não pode ser lido. Verifique se você tem permissão de leitura e se o arquivo não está em uso.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Export the model again and open the new file.</source>
        <translation>&quot;%1&quot; está vazio. Exporte o modelo novamente e abra o novo arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends too early: a part of it is missing. Copy or export the file again.</source>
        <translation>&quot;%1&quot; termina cedo demais: falta uma parte. Copie ou exporte o arquivo novamente.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t what its ending says. Check the file, or export the model again.</source>
        <translation>&quot;%1&quot; não é o que sua extensão indica. Verifique o arquivo ou exporte o modelo novamente.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: its content is damaged. Export the model again and open the new file.</source>
        <translation>&quot;%1&quot; não pode ser lido: seu conteúdo está danificado. Exporte o modelo novamente e abra o novo arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t whole: entries that others refer to are missing. Copy or export the file again.</source>
        <translation>&quot;%1&quot; não está completo: faltam entradas referenciadas por outras. Copie ou exporte o arquivo novamente.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot; was stopped.</source>
        <translation>A abertura de &quot;%1&quot; foi interrompida.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no part with surfaces. Export the model with its solids and open the new file.</source>
        <translation>&quot;%1&quot; não contém nenhuma peça com superfícies. Exporte o modelo com seus sólidos e abra o novo arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than there is. Close other programs and try again.</source>
        <translation>&quot;%1&quot; precisa de mais memória do que a disponível. Feche outros programas e tente novamente.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be opened. Check the file and try again.</source>
        <translation>&quot;%1&quot; não pode ser aberto. Verifique o arquivo e tente novamente.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open.</source>
        <translation>&quot;%1&quot; está aberto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved.</source>
        <translation>&quot;%1&quot; foi salvo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is a folder. Choose a name for the file.</source>
        <translation>&quot;%1&quot; não pode ser gravado: é uma pasta. Escolha um nome para o arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its folder doesn&apos;t exist. Choose another folder.</source>
        <translation>&quot;%1&quot; não pode ser gravado: a pasta não existe. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is protected against writing. Choose another name.</source>
        <translation>&quot;%1&quot; não pode ser gravado: está protegido contra gravação. Escolha outro nome.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: you may not write to its folder. Choose another folder.</source>
        <translation>&quot;%1&quot; não pode ser gravado: você não pode gravar na pasta. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the disk is full. Make room, or choose another disk.</source>
        <translation>&quot;%1&quot; não pode ser gravado: o disco está cheio. Libere espaço ou escolha outro disco.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk is read-only. Choose another disk.</source>
        <translation>&quot;%1&quot; não pode ser gravado: o disco é somente leitura. Escolha outro disco.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: your quota is used up. Make room, or choose another disk.</source>
        <translation>&quot;%1&quot; não pode ser gravado: sua cota está esgotada. Libere espaço ou escolha outro disco.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk takes no file of this size. Choose another disk.</source>
        <translation>&quot;%1&quot; não pode ser gravado: o disco não aceita arquivos deste tamanho. Escolha outro disco.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its name is too long. Choose a shorter name.</source>
        <translation>&quot;%1&quot; não pode ser gravado: o nome é longo demais. Escolha um nome mais curto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the path of its folder is too long. Choose a folder with a shorter path.</source>
        <translation>&quot;%1&quot; não pode ser gravado: o caminho da pasta é longo demais. Escolha uma pasta com caminho mais curto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the memory is full. Close other programs and try again.</source>
        <translation>&quot;%1&quot; não pode ser gravado: a memória está cheia. Feche outros programas e tente novamente.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: the model is too large for this format. Choose another format.</source>
        <translation>&quot;%1&quot; não pode ser salvo: o modelo é grande demais para este formato. Escolha outro formato.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and the free space, or choose another place.</source>
        <translation>&quot;%1&quot; não pode ser gravado. Verifique a pasta e o espaço livre ou escolha outro lugar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and that the name ends in .png or .jpg.</source>
        <translation>&quot;%1&quot; não pode ser gravado. Verifique a pasta e se o nome termina em .png ou .jpg.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: its exporter isn&apos;t installed. Choose another format.</source>
        <translation>&quot;%1&quot; não pode ser salvo: o exportador não está instalado. Escolha outro formato.</translation>
    </message>
    <message>
        <source>There is nothing to save in this format. Open a model with parts first.</source>
        <translation>Não há nada para salvar neste formato. Abra primeiro um modelo com peças.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is missing. Install Orvanta again and start it anew.</source>
        <translation>A biblioteca &quot;%1&quot; não foi encontrada. Instale o Orvanta novamente e reinicie-o.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; lacks the function &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>Falta a função &quot;%2&quot; na biblioteca &quot;%1&quot;. Instale o Orvanta novamente e reinicie-o.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no plug-in. The viewer works on without it; install the plug-in again to get it back.</source>
        <translation>A biblioteca &quot;%1&quot; não criou nenhum plug-in. O visualizador continua sem ele; instale o plug-in novamente para recuperá-lo.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no object. Install Orvanta again and start it anew.</source>
        <translation>A biblioteca &quot;%1&quot; não criou nenhum objeto. Instale o Orvanta novamente e reinicie-o.</translation>
    </message>
    <message>
        <source>The display offers no OpenGL. Install a graphics driver, or Mesa&apos;s software one.</source>
        <translation>A tela não oferece OpenGL. Instale um driver gráfico ou o driver por software do Mesa.</translation>
    </message>
    <message>
        <source>There is no display to draw on. Start the viewer from a desktop session.</source>
        <translation>Não há tela para desenhar. Inicie o visualizador a partir de uma sessão de desktop.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Vermelho</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Laranja</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarelo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Azul-petróleo</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violeta</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Branco</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Cinza-escuro</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelos</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; can't be loaded: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>Não é possível carregar a biblioteca &quot;%1&quot;: &quot;%2&quot;. Instale o Orvanta novamente e reinicie-o.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>Não foi possível iniciar a biblioteca &quot;%1&quot;: &quot;%2&quot;. Instale o Orvanta novamente e reinicie-o.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start. Install Orvanta again and start it anew.</source>
        <translation>Não foi possível iniciar a biblioteca &quot;%1&quot;. Instale o Orvanta novamente e reinicie-o.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end: &quot;%2&quot;. Save your work and start Orvanta anew.</source>
        <translation>A biblioteca &quot;%1&quot; não terminou corretamente: &quot;%2&quot;. Salve seu trabalho e reinicie o Orvanta.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end. Save your work and start Orvanta anew.</source>
        <translation>A biblioteca &quot;%1&quot; não terminou corretamente. Salve seu trabalho e reinicie o Orvanta.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is no plug-in for the viewer's windows. Move it out of the folder &quot;%2&quot;.</source>
        <translation>A biblioteca &quot;%1&quot; não é um plug-in para as janelas do visualizador. Retire-a da pasta &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The picture can't be drawn on this display. Check the graphics driver.</source>
        <translation>Não é possível desenhar a imagem nesta tela. Verifique o driver gráfico.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; can't be written. Check the folder and that it ends in .png or .jpg.</source>
        <translation>Não é possível gravar a imagem &quot;%1&quot;. Verifique a pasta e se o nome termina em .png ou .jpg.</translation>
    </message>
    <message>
        <source>There is no display to draw on. Install &quot;%1&quot; or start the viewer from a desktop session.</source>
        <translation>Não há tela para desenhar. Instale &quot;%1&quot; ou inicie o visualizador em uma sessão de desktop.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln part(s)</source>
        <translation>
            <numerusform>%Ln peça</numerusform>
            <numerusform>%Ln peças</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangle(s)</source>
        <translation>
            <numerusform>%Ln triângulo</numerusform>
            <numerusform>%Ln triângulos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln selecionada</numerusform>
            <numerusform>%Ln selecionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Only one model can be opened at a time. Give one file.</source>
        <translation>Só é possível abrir um modelo por vez. Informe um único arquivo.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; isn't known. Use --help to see all options.</source>
        <translation>A opção &quot;%1&quot; não existe. Use --help para ver todas as opções.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value. Use --help to see all options.</source>
        <translation>A opção &quot;%1&quot; precisa de um valor. Use --help para ver todas as opções.</translation>
    </message>
    <message>
        <source>The language must be a code of two letters, such as &quot;%1&quot;.</source>
        <translation>O idioma deve ser um código de duas letras, por exemplo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is nothing to export or draw. Give a model file, too.</source>
        <translation>Não há nada para exportar ou desenhar. Informe também um arquivo de modelo.</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it from a desktop session, or use --export or --screenshot.</source>
        <translation>Não há tela para abrir uma janela. Inicie o visualizador a partir de uma sessão de desktop ou use --export ou --screenshot.</translation>
    </message>
    <message>
        <source>Usage: orvanta [FILE] [OPTION]...</source>
        <translation>Uso: orvanta [FILE] [OPTION]...</translation>
    </message>
    <message>
        <source>Views and reviews 3D CAD models: STEP, IGES, BREP, STL, OBJ and glTF.</source>
        <translation>Exibe e revisa modelos CAD 3D: STEP, IGES, BREP, STL, OBJ e glTF.</translation>
    </message>
    <message>
        <source>address of the cloud service</source>
        <translation>endereço do serviço na nuvem</translation>
    </message>
    <message>
        <source>where the user's data lies</source>
        <translation>pasta dos dados do usuário</translation>
    </message>
    <message>
        <source>language, two letters: en, fr, de, ja, ko, zh, es or pt</source>
        <translation>idioma, duas letras: en, fr, de, ja, ko, zh, es ou pt</translation>
    </message>
    <message>
        <source>write FILE to OUT in the format of its ending and exit; may be repeated</source>
        <translation>gravar FILE em OUT no formato de sua extensão e sair; pode ser repetido</translation>
    </message>
    <message>
        <source>draw FILE to a picture (.png, .jpg) and exit</source>
        <translation>desenhar FILE em uma imagem (.png, .jpg) e sair</translation>
    </message>
    <message>
        <source>show this text and exit</source>
        <translation>mostrar este texto e sair</translation>
    </message>
    <message>
        <source>show the version and exit</source>
        <translation>mostrar a versão e sair</translation>
    </message>
</context>
</TS>
