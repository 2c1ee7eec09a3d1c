<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>Orvanta</name>
    <message>
        <source>Show the axis cross</source>
        <translation>Mostrar los ejes de coordenadas</translation>
    </message>
    <message>
        <source>Show the view cube</source>
        <translation>Mostrar el cubo de vistas</translation>
    </message>
    <message>
        <source>Open models in perspective</source>
        <translation>Abrir los modelos en perspectiva</translation>
    </message>
    <message>
        <source>Show the model tree</source>
        <translation>Mostrar el árbol del modelo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>&amp;Other colour...</source>
        <translation>&amp;Otro color...</translation>
    </message>
    <message>
        <source>&amp;As in the file</source>
        <translation>Como en el &amp;archivo</translation>
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
        <translation>Aún no se ha abierto ningún modelo</translation>
    </message>
    <message>
        <source>Open a model</source>
        <translation>Abrir un modelo</translation>
    </message>
    <message>
        <source>STEP, IGES, BREP, STL, OBJ or glTF. Drop a file here, or choose one.</source>
        <translation>STEP, IGES, BREP, STL, OBJ o glTF. Suelte un archivo aquí o elija uno.</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
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
        <translation>Abrir uno de los últimos modelos abiertos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close the model</source>
        <translation>Cerrar el modelo</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Save the model in another format</source>
        <translation>Guardar el modelo en otro formato</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Save a picture of the view</source>
        <translation>Guardar una imagen de la vista</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show the whole model</source>
        <translation>Mostrar todo el modelo</translation>
    </message>
    <message>
        <source>Fit selection</source>
        <translation>Ajustar a la selección</translation>
    </message>
    <message>
        <source>Show the selected parts</source>
        <translation>Encuadrar las piezas seleccionadas</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Bring the model nearer</source>
        <translation>Acercar el modelo</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Move the model away</source>
        <translation>Alejar el modelo</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspectiva</translation>
    </message>
    <message>
        <source>Change between perspective and parallel projection</source>
        <translation>Cambiar entre proyección en perspectiva y paralela</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Frontal</translation>
    </message>
    <message>
        <source>Look from the front</source>
        <translation>Ver desde el frente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Posterior</translation>
    </message>
    <message>
        <source>Look from the back</source>
        <translation>Ver desde atrás</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Look from the left</source>
        <translation>Ver desde la izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Look from the right</source>
        <translation>Ver desde la derecha</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Superior</translation>
    </message>
    <message>
        <source>Look from the top</source>
        <translation>Ver desde arriba</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Inferior</translation>
    </message>
    <message>
        <source>Look from below</source>
        <translation>Ver desde abajo</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>Isométrica</translation>
    </message>
    <message>
        <source>Look from a corner</source>
        <translation>Ver desde una esquina</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Hide the selected parts</source>
        <translation>Ocultar las piezas seleccionadas</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Aislar</translation>
    </message>
    <message>
        <source>Show nothing but the selected parts</source>
        <translation>Mostrar solo las piezas seleccionadas</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Show all parts</source>
        <translation>Mostrar todas las piezas</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Colour the selected parts</source>
        <translation>Colorear las piezas seleccionadas</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Make the selected parts transparent</source>
        <translation>Hacer transparentes las piezas seleccionadas</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Move the selected parts</source>
        <translation>Mover las piezas seleccionadas</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Undo all hiding, colouring, transparency and moving</source>
        <translation>Deshacer todas las ocultaciones, colores, transparencias y desplazamientos</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Select the whole model</source>
        <translation>Seleccionar todo el modelo</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>No seleccionar nada</translation>
    </message>
    <message>
        <source>Clear the selection</source>
        <translation>Anular la selección</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Change the options</source>
        <translation>Cambiar las opciones</translation>
    </message>
    <message>
        <source>Model tree</source>
        <translation>Árbol del modelo</translation>
    </message>
    <message>
        <source>Show or hide the model tree</source>
        <translation>Mostrar u ocultar el árbol del modelo</translation>
    </message>
    <message>
        <source>Side bar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Show or hide the side bar</source>
        <translation>Mostrar u ocultar la barra lateral</translation>
    </message>
    <message>
        <source>Next pane</source>
        <translation>Panel siguiente</translation>
    </message>
    <message>
        <source>Go round from the model tree to the view, the side bar and the ribbon</source>
        <translation>Recorrer el árbol del modelo, la vista, la barra lateral y la cinta de opciones</translation>
    </message>
    <message>
        <source>Previous pane</source>
        <translation>Panel anterior</translation>
    </message>
    <message>
        <source>Go round the other way</source>
        <translation>Recorrer en sentido contrario</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Back to start</source>
        <translation>&amp;Volver al inicio</translation>
    </message>
    <message>
        <source>Model view</source>
        <translation>Vista del modelo</translation>
    </message>
    <message>
        <source>The model can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>No se puede dibujar el modelo: no hay ninguna pantalla con OpenGL.</translation>
    </message>
    <message>
        <source>Find a part</source>
        <translation>Buscar una pieza</translation>
    </message>
    <message>
        <source>No model</source>
        <translation>Ningún modelo</translation>
    </message>
    <message>
        <source>This pane is shown in a window of its own. Close that window to bring it back.</source>
        <translation>Este panel se muestra en su propia ventana. Ciérrela para traerlo de vuelta.</translation>
    </message>
    <message>
        <source>Show this pane in a window of its own</source>
        <translation>Mostrar este panel en su propia ventana</translation>
    </message>
    <message>
        <source>Keep the side bar open</source>
        <translation>Mantener abierta la barra lateral</translation>
    </message>
    <message>
        <source>Hide the side bar while it is not used</source>
        <translation>Ocultar la barra lateral mientras no se usa</translation>
    </message>
    <message>
        <source>Show the panels before</source>
        <translation>Mostrar los grupos anteriores</translation>
    </message>
    <message>
        <source>Show the panels after</source>
        <translation>Mostrar los grupos siguientes</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>Inicio</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Standard views</source>
        <translation>Vistas estándar</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Piezas</translation>
    </message>
    <message>
        <source>The picture can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>No se puede dibujar la imagen: no hay ninguna pantalla con OpenGL.</translation>
    </message>
    <message>
        <source>There is nothing to draw. Open a model first.</source>
        <translation>No hay nada que dibujar. Abra primero un modelo.</translation>
    </message>
    <message>
        <source>No exporter is installed. Install Orvanta again and start it anew.</source>
        <translation>No hay ningún exportador instalado. Vuelva a instalar Orvanta e inícielo de nuevo.</translation>
    </message>
    <message>
        <source>The action was broken off by an unexpected error. Try again.</source>
        <translation>Un error inesperado interrumpió la acción. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;... Press Esc to stop.</source>
        <translation>Abriendo &quot;%1&quot;... Pulse Esc para detener.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>The system&apos;s language</source>
        <translation>Idioma del sistema</translation>
    </message>
    <message>
        <source>The new language is used when Orvanta is started again.</source>
        <translation>El nuevo idioma se usará la próxima vez que se inicie Orvanta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t exist. Check the path or choose another file.</source>
        <translation>&quot;%1&quot; no existe. Compruebe la ruta o elija otro archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a model file in it.</source>
        <translation>&quot;%1&quot; es una carpeta. Elija un archivo de modelo que esté en ella.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a type that can&apos;t be opened. Open STEP, IGES, BREP, STL, OBJ, glTF or Orvanta files.</source>
        <translation>&quot;%1&quot; es de un tipo que no se puede abrir. Abra archivos STEP, IGES, BREP, STL, OBJ, glTF u Orvanta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read. Check that you may read it and that it isn&apos;t in use.</source>
        <translation>No se puede leer &quot;%1&quot;. Compruebe que tiene permiso de lectura y que no está en uso.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Export the model again and open the new file.</source>
        <translation>&quot;%1&quot; está vacío. Vuelva a exportar el modelo y abra el nuevo archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends too early: a part of it is missing. Copy or export the file again.</source>
        <translation>&quot;%1&quot; termina demasiado pronto: falta una parte. Vuelva a copiar o exportar el archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t what its ending says. Check the file, or export the model again.</source>
        <translation>&quot;%1&quot; no es lo que indica su extensión. Compruebe el archivo o vuelva a exportar el modelo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: its content is damaged. Export the model again and open the new file.</source>
        <translation>No se puede leer &quot;%1&quot;: su contenido está dañado. Vuelva a exportar el modelo y abra el nuevo archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t whole: entries that others refer to are missing. Copy or export the file again.</source>
        <translation>&quot;%1&quot; no está completo: faltan entradas a las que otras hacen referencia. Vuelva a copiar o exportar el archivo.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot; was stopped.</source>
        <translation>Se detuvo la apertura de &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no part with surfaces. Export the model with its solids and open the new file.</source>
        <translation>&quot;%1&quot; no contiene ninguna pieza con superficies. Exporte el modelo con sus sólidos y abra el nuevo archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than there is. Close other programs and try again.</source>
        <translation>&quot;%1&quot; necesita más memoria de la que hay. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be opened. Check the file and try again.</source>
        <translation>No se puede abrir &quot;%1&quot;. Compruebe el archivo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open.</source>
        <translation>&quot;%1&quot; está abierto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved.</source>
        <translation>&quot;%1&quot; se ha guardado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is a folder. Choose a name for the file.</source>
        <translation>No se puede escribir &quot;%1&quot;: es una carpeta. Elija un nombre para el archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its folder doesn&apos;t exist. Choose another folder.</source>
        <translation>No se puede escribir &quot;%1&quot;: su carpeta no existe. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is protected against writing. Choose another name.</source>
        <translation>No se puede escribir &quot;%1&quot;: está protegido contra escritura. Elija otro nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: you may not write to its folder. Choose another folder.</source>
        <translation>No se puede escribir &quot;%1&quot;: no tiene permiso de escritura en su carpeta. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the disk is full. Make room, or choose another disk.</source>
        <translation>No se puede escribir &quot;%1&quot;: el disco está lleno. Libere espacio o elija otro disco.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk is read-only. Choose another disk.</source>
        <translation>No se puede escribir &quot;%1&quot;: el disco es de solo lectura. Elija otro disco.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: your quota is used up. Make room, or choose another disk.</source>
        <translation>No se puede escribir &quot;%1&quot;: su cuota está agotada. Libere espacio o elija otro disco.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk takes no file of this size. Choose another disk.</source>
        <translation>No se puede escribir &quot;%1&quot;: el disco no admite archivos de este tamaño. Elija otro disco.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its name is too long. Choose a shorter name.</source>
        <translation>No se puede escribir &quot;%1&quot;: el nombre es demasiado largo. Elija un nombre más corto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the path of its folder is too long. Choose a folder with a shorter path.</source>
        <translation>No se puede escribir &quot;%1&quot;: la ruta de la carpeta es demasiado larga. Elija una carpeta con una ruta más corta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the memory is full. Close other programs and try again.</source>
        <translation>No se puede escribir &quot;%1&quot;: la memoria está llena. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: the model is too large for this format. Choose another format.</source>
        <translation>No se puede guardar &quot;%1&quot;: el modelo es demasiado grande para este formato. Elija otro formato.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and the free space, or choose another place.</source>
        <translation>No se puede escribir &quot;%1&quot;. Compruebe la carpeta y el espacio libre, o elija otro lugar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and that the name ends in .png or .jpg.</source>
        <translation>No se puede escribir &quot;%1&quot;. Compruebe la carpeta y que el nombre termine en .png o .jpg.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: its exporter isn&apos;t installed. Choose another format.</source>
        <translation>No se puede guardar &quot;%1&quot;: su exportador no está instalado. Elija otro formato.</translation>
    </message>
    <message>
        <source>There is nothing to save in this format. Open a model with parts first.</source>
        <translation>No hay nada que guardar en este formato. Abra primero un modelo con piezas.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is missing. Install Orvanta again and start it anew.</source>
        <translation>Falta la biblioteca &quot;%1&quot;. Vuelva a instalar Orvanta e inícielo de nuevo.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; lacks the function &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>A la biblioteca &quot;%1&quot; le falta la función &quot;%2&quot;. Vuelva a instalar Orvanta e inícielo de nuevo.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no plug-in. The viewer works on without it; install the plug-in again to get it back.</source>
        <translation>La biblioteca &quot;%1&quot; no creó ningún complemento. El visor sigue funcionando sin él; vuelva a instalarlo para recuperarlo.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no object. Install Orvanta again and start it anew.</source>
        <translation>La biblioteca &quot;%1&quot; no creó ningún objeto. Vuelva a instalar Orvanta e inícielo de nuevo.</translation>
    </message>
    <message>
        <source>The display offers no OpenGL. Install a graphics driver, or Mesa&apos;s software one.</source>
        <translation>La pantalla no ofrece OpenGL. Instale un controlador gráfico o el controlador por software de Mesa.</translation>
    </message>
    <message>
        <source>There is no display to draw on. Start the viewer from a desktop session.</source>
        <translation>No hay pantalla en la que dibujar. Inicie el visor desde una sesión de escritorio.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Verde azulado</translation>
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
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Gris oscuro</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelos</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; can't be loaded: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>No se puede cargar la biblioteca &quot;%1&quot;: &quot;%2&quot;. Vuelva a instalar Orvanta e inícielo de nuevo.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>No se pudo iniciar la biblioteca &quot;%1&quot;: &quot;%2&quot;. Vuelva a instalar Orvanta e inícielo de nuevo.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start. Install Orvanta again and start it anew.</source>
        <translation>No se pudo iniciar la biblioteca &quot;%1&quot;. Vuelva a instalar Orvanta e inícielo de nuevo.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end: &quot;%2&quot;. Save your work and start Orvanta anew.</source>
        <translation>La biblioteca &quot;%1&quot; no terminó correctamente: &quot;%2&quot;. Guarde su trabajo y reinicie Orvanta.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end. Save your work and start Orvanta anew.</source>
        <translation>La biblioteca &quot;%1&quot; no terminó correctamente. Guarde su trabajo y reinicie Orvanta.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is no plug-in for the viewer's windows. Move it out of the folder &quot;%2&quot;.</source>
        <translation>La biblioteca &quot;%1&quot; no es un complemento para las ventanas del visor. Sáquela de la carpeta &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The picture can't be drawn on this display. Check the graphics driver.</source>
        <translation>No se puede dibujar la imagen en esta pantalla. Compruebe el controlador gráfico.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; can't be written. Check the folder and that it ends in .png or .jpg.</source>
        <translation>No se puede escribir la imagen &quot;%1&quot;. Compruebe la carpeta y que el nombre termine en .png o .jpg.</translation>
    </message>
    <message>
        <source>There is no display to draw on. Install &quot;%1&quot; or start the viewer from a desktop session.</source>
        <translation>No hay pantalla en la que dibujar. Instale &quot;%1&quot; o inicie el visor desde una sesión de escritorio.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln part(s)</source>
        <translation>
            <numerusform>%Ln pieza</numerusform>
            <numerusform>%Ln piezas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangle(s)</source>
        <translation>
            <numerusform>%Ln triángulo</numerusform>
            <numerusform>%Ln triángulos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln seleccionada</numerusform>
            <numerusform>%Ln seleccionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Only one model can be opened at a time. Give one file.</source>
        <translation>Solo se puede abrir un modelo a la vez. Indique un solo archivo.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; isn't known. Use --help to see all options.</source>
        <translation>La opción &quot;%1&quot; no existe. Use --help para ver todas las opciones.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value. Use --help to see all options.</source>
        <translation>La opción &quot;%1&quot; necesita un valor. Use --help para ver todas las opciones.</translation>
    </message>
    <message>
        <source>The language must be a code of two letters, such as &quot;%1&quot;.</source>
        <translation>El idioma debe ser un código de dos letras, por ejemplo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is nothing to export or draw. Give a model file, too.</source>
        <translation>No hay nada que exportar ni dibujar. Indique también un archivo de modelo.</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it from a desktop session, or use --export or --screenshot.</source>
        <translation>No hay pantalla en la que abrir una ventana. Inicie el visor desde una sesión de escritorio o use --export o --screenshot.</translation>
    </message>
    <message>
        <source>Usage: orvanta [FILE] [OPTION]...</source>
        <translation>Uso: orvanta [FILE] [OPTION]...</translation>
    </message>
    <message>
        <source>Views and reviews 3D CAD models: STEP, IGES, BREP, STL, OBJ and glTF.</source>
        <translation>Muestra y revisa modelos CAD 3D: STEP, IGES, BREP, STL, OBJ y glTF.</translation>
    </message>
    <message>
        <source>address of the cloud service</source>
        <translation>dirección del servicio en la nube</translation>
    </message>
    <message>
        <source>where the user's data lies</source>
        <translation>carpeta de los datos del usuario</translation>
    </message>
    <message>
        <source>language, two letters: en, fr, de, ja, ko, zh, es or pt</source>
        <translation>idioma, dos letras: en, fr, de, ja, ko, zh, es o pt</translation>
    </message>
    <message>
        <source>write FILE to OUT in the format of its ending and exit; may be repeated</source>
        <translation>escribir FILE en OUT con el formato de su extensión y salir; se puede repetir</translation>
    </message>
    <message>
        <source>draw FILE to a picture (.png, .jpg) and exit</source>
        <translation>dibujar FILE en una imagen (.png, .jpg) y salir</translation>
    </message>
    <message>
        <source>show this text and exit</source>
        <translation>mostrar este texto y salir</translation>
    </message>
    <message>
        <source>show the version and exit</source>
        <translation>mostrar la versión y salir</translation>
    </message>
</context>
</TS>
